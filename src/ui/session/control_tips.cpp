#include "ui/session/control_tips.h"

#include <QAbstractButton>
#include <QAction>
#include <QHash>

#include <iterator>
#include <utility>

namespace Ui {
namespace {

// By control name; one that ends in an underscore stands for all that begin so.
constexpr std::pair<const char*, const char*> Tips[] = {
    {"QuantiCanali_", "Quanti canali ha il ricevitore da cui viene la lista"},
    {"FlashScrittura_", "Il tipo del ricevitore in cui si scrive la lista"},
    {"SRDef_", "Dove il ricevitore tiene il symbol rate 22000 nella sua tabella"},
    {"InizioApri", "Apre l'immagine della flash di un ricevitore"},
    {"InserisciRiga", "Inserisce tante righe vuote quante sono quelle selezionate"},
    {"SoloTrovati", "Nasconde le righe che il filtro non ha trovato, o le mostra di nuovo"},
    {"SoloTrovatiSDX", "Nasconde le righe che il filtro non ha trovato, o le mostra di nuovo"},
    {"ParoleFiltro", "Le parole che il filtro conosce"},
    {"ParoleFiltroSDX", "Le parole che il filtro conosce"},
    {"VaiAlRisultato", "Mostra nella griglia dove sono i canali spostati"},
    {"Rinomina", "Modifica il nome del canale"},
    {"Attiva", "Rende attivi i canali selezionati"},
    {"Disattiva", "Rende non attivi i canali selezionati"},
    {"MenuCodifica", "Dà la stessa codifica ai canali selezionati"},
    {"Codifica_", "Dà questa codifica ai canali selezionati"},
    {"ImpostaTransponder", "Dà lo stesso transponder ai canali selezionati"},
    {"VaiAlTransponder", "Mostra il transponder del canale"},
    {"MenuPreferiti", "Aggiunge i canali selezionati a una lista di preferiti"},
    {"AggiungiPreferiti_", "Aggiunge i canali selezionati a questa lista di preferiti"},
    {"Scarica", "Scarica la lista dall'indirizzo scelto"},
    {"Annulla2", "Chiude senza scaricare"},
    {"VaiAlleRighe", "Mostra nella griglia le righe della voce"},
    {"StessoServizio", "Sono doppi i canali con satellite, TID, NID e SID uguali"},
    {"StessiPID", "Sono doppi i canali con transponder, SID e PID video e audio uguali"},
    {"StessoNome", "Sono doppi i canali con lo stesso nome"},
    {"StessoNomeBase", "Mette accanto i canali con lo stesso nome senza HD, SD, +1, per guardarli"},
    {"TieniDoppi", "Sceglie in ogni gruppo i canali da togliere; nessuno viene tolto da sé"},
    {"EliminaScelti", "Elimina i canali delle righe scelte"},
    {"EliminaTranneIlPrimo", "Lascia in ogni gruppo il canale col numero più basso"},
    {"VaiAlDoppio", "Mostra il canale nella griglia"},
    {"DisattivaScelti", "Rende non attivi i canali delle righe scelte"},
    {"SelezionaDoppi", "Seleziona nella griglia i canali scelti, o tutti quelli trovati"},
    {"SelezionaRighe", "Seleziona nella griglia i canali della voce"},
    {"EliminaRighe", "Elimina tutti i canali della voce, dopo averlo chiesto"},
    {"DisattivaRighe", "Rende non attivi tutti i canali della voce, dopo averlo chiesto"},
    {"SelezionaDiversi", "Seleziona nella griglia i canali segnati, o tutti quelli trovati"},
    {"VaiAlNonInSDX", "Mostra il canale nella griglia"},
    {"SelezionaNonInSDX", "Seleziona nella griglia i canali scelti, o tutti quelli dell'elenco"},
    {"SegnaNonInSDX", "Sceglie tutti i canali dell'elenco"},
    {"TogliSegniNonInSDX", "Non lascia scelto nessun canale"},
    {"EliminaNonInSDX", "Elimina i canali scelti"},
    {"DisattivaNonInSDX", "Rende non attivi i canali scelti"},
    {"Mostra_", "Mostra o nasconde le differenze di questo tipo"},
    {"ApplicaSegnati", "Porta nella propria lista le differenze segnate"},
    {"PrendiOrdine", "Dà ai canali i numeri che hanno nell'altra lista"},
    {"VaiAlControllato", "Mostra il transponder nella griglia"},
    {"SelezionaSuTransponder", "Seleziona nella griglia i canali dei transponder segnati, o di tutti"},
    {"AncheDvbS2", "Elenca fra i mancanti anche i transponder DVB-S2, che un ricevitore DVB-S non riceve"},
    {"SegnaTutti", "Segna tutte le differenze mostrate"},
    {"TogliSegni", "Toglie il segno a tutte le differenze"},
    {"VaiAlDiverso", "Mostra il canale nella griglia"},
    {"AggiungiSelezionati", "Aggiunge alla lista i canali selezionati nella griglia"},
    {"AggiungiTrovati", "Aggiunge alla lista i canali che il filtro ha trovato, mostrandoli prima"},
    {"AggiungiDaElenco", "Aggiunge alla lista i canali di un file: userbouquet, channels.conf, nomi"},
    {"OrdinaComePreferiti", "Mette i canali di questa lista nel suo ordine, nei posti che hanno fra tutti"},
    {"PreferitiInTesta", "Mette i canali di questa lista al posto 1 e seguenti; gli altri vengono dopo"},
    {"StampaListe", "Stampa le liste dei preferiti"},
    {"TogliPreferiti", "Toglie dalla lista le voci selezionate"},
    {"SpostaPreferiti", "Sposta le voci selezionate in un'altra lista"},
    {"StaccaPreferiti", "Mostra le liste in una finestra a parte"},
    {"AgganciaPreferiti", "Mostra le liste a destra della griglia, sotto l'albero o la lista SDX"},
    {"ComandiPreferiti", "I comandi per la lista scelta"},
    {"OrdinaPerNumero", "Mette i canali della lista nell'ordine dei loro numeri"},
    {"OrdinaPerNome", "Mette i canali della lista in ordine alfabetico"},
    {"OrdinaPreferiti", "Ordina la lista per numero o per nome"},
    {"Check1_", "Importa i canali di questo tipo"},
    {"Check3", "Filtri.txt è un elenco di coppie APID SID nella cartella del programma"},
    {"Chkfiltra", "Lascia fuori i canali che la propria lista ha già"},
    {"TieniHD", "Tiene anche ciò che un ricevitore MPEG-2 DVB-S non mostra"},
    {"InserisciSDX", "Porta le righe selezionate nella lista, al numero che si indica"},
    {"VaiAlGiaInLista", "Mostra il canale della lista che è lo stesso di questa riga"},
    {"SelezionaTuttoSDX", "Seleziona tutte le righe a destra"},
    {"SelezionaNuoviSDX", "Seleziona le righe a destra che la lista non ha ancora"},
    {"DallInizio", "Sovrascrive i canali dal numero 1 in poi"},
    {"DalCanale", "Sovrascrive i canali dal numero scritto sotto in poi"},
    {"NeiPostiVuoti", "Riempie i posti vuoti della lista, senza sovrascrivere nessun canale"},
    {"QualiCanali", "Elenca i canali di cui parla l'avviso"},
    {"AmbitoSelezione", "Cambia le righe selezionate nella griglia"},
    {"AmbitoTrovati", "Cambia le righe che il filtro ha trovato"},
    {"AmbitoLista", "Cambia tutti i canali della lista"},
    {"AggiungiRegola", "Aggiunge una regola, applicata dopo le altre"},
    {"TogliRegola", "Toglie questa regola"},
    {"TieniRegole", "Tiene le regole sotto il nome scritto, anche per le prossime volte"},
    {"ScordaRegole", "Cancella le regole tenute sotto questo nome"},
    {"SegnaRighe", "Segna tutti i canali che possono cambiare"},
    {"TogliSegniRighe", "Toglie il segno a tutti i canali"},
    {"OrdinaDalCanale", "Ordina i canali da questo numero in poi"},
    {"OrdinaSelezione", "Ordina i canali selezionati fra loro, negli stessi posti"},
    {"Virgolette", "Il separatore fra virgolette fa parte del campo"},
    {"Intestazione", "La prima riga non è un canale"},
};

const char* TipOf(const QString& control) {
  static const QHash<QString, const char*> tips(std::begin(Tips), std::end(Tips));
  if (const char* tip = tips.value(control)) return tip;
  return tips.value(control.left(control.lastIndexOf('_') + 1));
}

template <class Control>
void ShowTipsOf(QWidget& window) {
  for (Control* control : window.findChildren<Control*>()) {
    const char* tip = TipOf(control->objectName());
    if (tip == nullptr) continue;
    control->setToolTip(tip);
    control->setStatusTip(tip);
  }
}

}  // namespace

void ShowTips(QWidget& window) {
  ShowTipsOf<QAbstractButton>(window);
  ShowTipsOf<QAction>(window);
}

}  // namespace Ui
