// Every menu command and toolbar button of the window, in one table: name, caption, place, key, what it does and what
// has to be there for it. Whoever runs one connects it by its name, with Actions.
#pragma once

#include "ui/session/gate.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <type_traits>

class QAction;
class QMainWindow;

namespace Ui {

enum class Menu { File, Edit, Utilities, Compare, Sdx, Import, Export, About, View };

// How a command stands in its menu.
enum Place : unsigned {
  Plain = 0,
  Group = 1,  // a line divides it from the command above
  Tick = 2,   // it can be ticked
  OnRows = 4  // its key counts only while the grid has the focus
};

struct Command {
  const char* name;  // control name
  const char* caption;
  Menu menu;
  const char* icon;  // file below :/icons, without its ending; may be empty
  const char* key;   // may be empty
  const char* tip;   // what it does, in one line
  Gate gate = {};
  unsigned place = Plain;

  [[nodiscard]] constexpr bool Is(Place trait) const { return (place & trait) != 0; }
};

inline constexpr Command Commands[] = {
    {"ApriFlashInput", "Apri Flash Input", Menu::File, "open", "Ctrl+O",
     "Apre l'immagine della flash di un ricevitore, o la accoda a quella aperta",
     Gate(Enabled::WithoutFls, Need::Capacity)},
    {"CaricaAggiuntiva", "Carica Flash aggiuntiva", Menu::File, "", "",
     "Mostra i canali di una seconda flash, da cui prenderne per la lista"},
    {"Salva", "Salva", Menu::File, "save", "Ctrl+S", "Riscrive la lista nella flash di output",
     Gate(Enabled::WithList, Need::List, Need::Settings), Group},
    {"ApriFlashOutput", "Salva Flash come", Menu::File, "save-as", "Ctrl+Shift+S",
     "Scrive la lista in un'immagine esistente del ricevitore",
     Gate(Enabled::WithList, Need::List, Need::Settings)},
    {"SalvaCopiaNuova", "Salva una copia nuova…", Menu::File, "", "",
     "Scrive la lista in un'immagine nuova, fatta dalla flash aperta",
     Gate(Enabled::WithList, Need::OpenedFlash, Need::Settings)},
    {"StampaPreferiti", "Stampa Preferiti", Menu::File, "print", "", "Stampa le liste dei preferiti",
     Gate(Enabled::WithFavourites, Need::List), Group},
    {"Fine", "Fine", Menu::File, "exit", "",
     "Chiude il programma; le modifiche non salvate vengono offerte al prossimo avvio", Gate(), Group},

    {"Annulla", "Annulla", Menu::Edit, "undo", "Ctrl+Z",
     "Riporta la lista a com'era prima dell'ultima modifica", Enabled::WithUndo},
    {"Ripeti", "Ripeti", Menu::Edit, "redo", "Ctrl+Y", "Rifà la modifica annullata", Enabled::WithRedo},
    {"AnnullaFino", "Annulla fino a…", Menu::Edit, "", "Ctrl+Alt+Z",
     "Elenca le modifiche fatte, l'ultima in cima: quella scelta è annullata con tutte le seguenti",
     Enabled::WithUndo},
    {"Taglia", "Taglia", Menu::Edit, "cut", "Ctrl+X", "Toglie i canali selezionati per incollarli altrove",
     Need::ChannelRows, Group | OnRows},
    {"Copia", "Copia", Menu::Edit, "copy", "Ctrl+C", "Copia i canali selezionati", Need::ChannelRows, OnRows},
    {"Incolla", "Incolla", Menu::Edit, "paste", "Ctrl+V",
     "Inserisce i canali copiati o tagliati al numero che si indica", Gate(Need::ChannelRows, Need::Places),
     OnRows},
    {"Elimina", "Elimina", Menu::Edit, "delete", "Del",
     "Elimina i canali selezionati; quelli che seguono risalgono", Need::ChannelRows, OnRows},
    {"SpostaSu", "Sposta su", Menu::Edit, "", "Alt+Up", "Sposta le righe selezionate di un posto in su",
     Gate(Need::ChannelRows, Need::ListOrder), Group | OnRows},
    {"SpostaGiu", "Sposta giù", Menu::Edit, "", "Alt+Down", "Sposta le righe selezionate di un posto in giù",
     Gate(Need::ChannelRows, Need::ListOrder), OnRows},
    {"SpostaA", "Sposta a…", Menu::Edit, "", "Ctrl+M", "Sposta le righe selezionate al numero che si indica",
     Need::ChannelRows},
    {"SpostaInCima", "In cima", Menu::Edit, "", "Alt+Home",
     "Sposta le righe selezionate all'inizio della lista", Need::ChannelRows},
    {"SpostaInFondo", "In fondo", Menu::Edit, "", "Alt+End",
     "Sposta le righe selezionate dopo l'ultimo canale", Need::ChannelRows},
    {"SpostaDopoUltimo", "Dopo l'ultimo spostato", Menu::Edit, "", "Alt+Ins",
     "Sposta le righe selezionate dietro quelle spostate l'ultima volta", Need::ChannelRows},
    {"Scambia", "Scambia", Menu::Edit, "", "Ctrl+Shift+X", "Scambia di posto i due canali selezionati",
     Need::ChannelRows},
    {"ChiudiVuoti", "Chiudi i posti vuoti…", Menu::Edit, "", "",
     "Fa risalire i canali nei posti vuoti: fra le righe selezionate, o da un canale in poi",
     Gate(Need::ChannelRows, Need::Places)},
    {"CambiaNomi", "Cambia nomi…", Menu::Edit, "", "Ctrl+Shift+R",
     "Cambia i nomi di molti canali con delle regole, mostrando prima che cosa cambia",
     Gate(Enabled::WithList, Need::ChannelView), Group},
    {"ImpostaCampi", "Imposta…", Menu::Edit, "", "Ctrl+Shift+I",
     "Dà a molti canali la stessa codifica o lo stesso transponder, li attiva, sposta SID e PID, mostrando "
     "prima che cosa cambia",
     Gate(Enabled::WithList, Need::ChannelView)},
    {"OrdinaCanali", "Ordina Canali…", Menu::Edit, "", "",
     "Ordina i canali per nome, satellite, bouquet o altro, mostrando prima la lista come diventa",
     Gate(Enabled::WithList, Need::ChannelView, Need::Places)},
    {"SelezionaTrovati", "Seleziona i trovati", Menu::Edit, "", "Ctrl+Shift+A",
     "Seleziona tutte le righe che il filtro ha trovato", Need::AnyView, Group},
    {"SoloITrovati", "Solo i trovati", Menu::Edit, "", "Ctrl+Shift+H",
     "Nasconde le righe che il filtro non ha trovato, o le mostra di nuovo", Need::AnyView, Tick},
    {"LetterePiuGrandi", "Lettere più grandi", Menu::View, "", "Ctrl++",
     "Ingrandisce le lettere delle griglie e degli alberi"},
    {"LetterePiuPiccole", "Lettere più piccole", Menu::View, "", "Ctrl+-",
     "Rimpicciolisce le lettere delle griglie e degli alberi"},
    {"LettereIniziali", "Lettere come all'inizio", Menu::View, "", "Ctrl+0",
     "Ridà alle lettere delle griglie e degli alberi la grandezza del desktop"},
    {"OrdineDellaLista", "Ordine della lista", Menu::View, "", "Ctrl+Shift+L",
     "Mostra di nuovo nell'ordine della lista le righe di una vista ordinata", Need::AnyView, Group},
    {"MenuDellaColonna", "Colonna corrente…", Menu::View, "", "Ctrl+Shift+K",
     "Apre il menu della colonna con la cella corrente: ordinare la vista, nascondere, mostrare le altre",
     Need::AnyView},
    {"LarghezzeIniziali", "Larghezze come all'inizio", Menu::View, "", "",
     "Ridà a tutte le colonne delle griglie le larghezze dell'inizio"},
    {"ColoriTenui", "Colori tenui", Menu::View, "", "",
     "Mostra le righe in tinte tenui, con una striscia del colore che hanno accanto al numero", Gate(),
     Group | Tick},

    {"CaricaImportato", "Carica Canali da file esportato", Menu::Utilities, "import", "",
     "Carica una lista esportata in formato Testo", Need::Settings},
    {"Azzera", "Azzera Canali e Transponder", Menu::Utilities, "", "",
     "Svuota canali e transponder della lista; i preferiti restano", Need::ListToClear, Group},
    {"OrdinaPerBouquet", "Ordina Canali per Bouquet", Menu::Utilities, "", "",
     "Raggruppa i canali per bouquet e transponder", Need::List},
    {"SpostaRadio", "Raggruppa RADIO e SERVIZI", Menu::Utilities, "", "",
     "Mette radio e servizi in fondo alla lista, dopo i canali TV", Need::List},
    {"CanaliDoppi", "Controlla Canali Doppi", Menu::Utilities, "", "",
     "Cerca i canali che sono nella lista più di una volta", Need::List},
    {"InvertiSatelliti", "Inverti Satelliti", Menu::Utilities, "", "", "Scambia i satelliti A con B, C con D",
     Need::List, Group},
    {"RiportaAB", "Riporta tutto a SAT A-B", Menu::Utilities, "", "",
     "Riporta tutti i transponder ai satelliti A e B", Need::List},
    {"ConvertiSR", "Converti SR", Menu::Utilities, "convert-sr", "",
     "Ricodifica i symbol rate come dice Definizione SR 22000",
     Gate(Enabled::WithList, Need::List, Need::Settings)},
    {"VisualizzaCanali", "Visualizza Canali", Menu::Utilities, "channels", "",
     "Mostra o chiude la lista dei canali", Need::List, Group | Tick},
    {"VisualizzaTransponder", "Visualizza Transponders", Menu::Utilities, "transponders", "",
     "Mostra o chiude la lista dei transponder", Need::List, Tick},
    {"VisualizzaPreferiti", "Visualizza Preferiti", Menu::Utilities, "favourites", "",
     "Apre le otto liste dei preferiti", Gate(Enabled::WithFavourites, Need::List)},
    {"VisualizzaBouquet", "Visualizza Struttura per Bouquet", Menu::Utilities, "bouquet", "",
     "Mostra la lista come albero di satelliti, bouquet e transponder", Need::List, Tick},
    {"CercaCanale", "Ricerca canale per Nome", Menu::Utilities, "find", "Ctrl+F", "Cerca un canale per nome",
     Gate(Enabled::WithList, Need::ChannelView), Group},
    {"VaiAlCanale", "Vai al Canale Nr.", Menu::Utilities, "goto", "Ctrl+G",
     "Va al canale con il numero che si indica", Gate(Enabled::WithList, Need::ChannelView)},
    {"StampaGriglia", "Stampa", Menu::Utilities, "print", "Ctrl+P",
     "Stampa la lista mostrata, o le righe selezionate", Gate(Enabled::WithList, Need::AnyView), Group},
    {"CercaSuccessivo", "Ricerca successivo", Menu::Utilities, "", "F3", "Va al prossimo canale trovato",
     Gate(), Group},
    {"Filtra", "Filtro", Menu::Utilities, "", "Ctrl+Shift+F",
     "Trova i canali mentre si scrive: un nome, un numero, un satellite, le radio…",
     Gate(Enabled::WithList, Need::ChannelView)},
    {"Riepilogo", "Riepilogo", Menu::Utilities, "", "",
     "Dice che cosa c'è nella lista e che cosa controllare", Need::List},
    {"CanaliXTransponder", "Ricalcola il numero di Canali per transponder", Menu::Utilities, "recount", "",
     "Ricalcola il numero di Canali per transponder", Need::List},

    {"Confronta", "Confronta con un'altra flash…", Menu::Compare, "", "",
     "Confronta la lista con quella di un'altra flash", Need::List},
    {"ConfrontaDisco", "Confronta con il file su disco", Menu::Compare, "", "",
     "Mostra che cosa cambierebbe salvando", Need::List},
    {"ConfrontaSDX", "Confronta con la lista a destra", Menu::Compare, "", "",
     "Confronta la lista con quella accanto, da qualunque file venga",
     Gate(Enabled::WhileSdxShown, Need::List)},
    {"OrdinaCome", "Ordina come un elenco…", Menu::Compare, "", "",
     "Mette i canali nell'ordine di un elenco, di una lista di preferiti o di un'altra flash", Need::List,
     Group},
    {"SalvaOrdine", "Salva l'ordine…", Menu::Compare, "", "",
     "Scrive l'ordine dei canali in un elenco, per riusarlo", Need::List},
    {"ControllaTransponder", "Controlla i transponder con un elenco…", Menu::Compare, "", "",
     "Dice quali transponder mancano, sono cambiati o non ci sono più secondo un elenco di oggi", Need::List,
     Group},

    {"ScaricaInternet", "Scarica da Internet", Menu::Sdx, "internet", "",
     "Scarica una lista SatcoDX da un indirizzo", Need::ChannelsForDownload},
    {"SDX", "Carica File (.sdx)", Menu::Sdx, "open-sdx", "", "Carica una lista SatcoDX accanto ai canali",
     Need::ChannelsForSdx},
    {"VediSDX", "Visualizza", Menu::Sdx, "", "", "Mostra o chiude la lista accanto ai canali",
     Enabled::WhenSdxMayShow, Group | Tick},
    {"RicercaSDX", "Ricerca", Menu::Sdx, "find-sdx", "", "Cerca un canale nella lista SatcoDX",
     Enabled::WhileSdxShown},
    {"StampaSDX", "Stampa", Menu::Sdx, "print", "", "Stampa la lista SatcoDX", Enabled::WhileSdxShown},
    {"ImportaTuttoSDX", "Importa tutto SDX", Menu::Sdx, "import", "",
     "Porta tutti i canali della lista SatcoDX nella propria",
     Gate(Enabled::WhileSdxShown, Need::ChannelsForSdxImport, Need::Places), Group},

    {"DaEsportato", "Da formato FLASH", Menu::Import, "", "", "Carica una lista esportata in formato FLASH",
     Need::Settings},
    {"DaEsportatoTesto", "Da formato TESTO", Menu::Import, "", "",
     "Carica una lista esportata in formato Testo", Need::Settings},
    {"Digiquest", "Da File Digiquest/FortecStar", Menu::Import, "", "",
     "Carica una lista di testo di altri ricevitori, scegliendone le colonne", Need::ChannelsForSdx},
    {"Pelko", "Da File Pelko", Menu::Import, "", "",
     "Carica una lista di testo di altri ricevitori, scegliendone le colonne", Need::ChannelsForSdx},
    {"ImportaElenco", "Da lista VDR, DVBv5 o Enigma2…", Menu::Import, "", "",
     "Carica una lista di oggi (channels.conf, DVBv5, lamedb) accanto ai canali", Need::ChannelsForSdx},
    {"DaCSV", "Da formato CSV", Menu::Import, "", "",
     "Confronta la lista con quella esportata in CSV e modificata in un foglio di calcolo", Need::List},
    {"FormatoFLASH", "In formato FLASH", Menu::Export, "", "",
     "Copia in un file .fls la flash aperta com'è su disco, che prende il posto della lista (Annulla la "
     "riporta)",
     Gate(Need::CapacityToExport, Need::OpenedFlash)},
    {"FormatoTesto", "In formato Testo", Menu::Export, "", "", "Scrive la lista in un file di testo",
     Need::List},
    {"FormatoCSV", "In formato CSV", Menu::Export, "", "", "Scrive la lista in un file per fogli di calcolo",
     Need::List},

    {"About", "&About", Menu::About, "info", "", "Dice che programma è questo"},
    {"Guida", "&Guida", Menu::About, "", "F1", "Apre la guida"},
};

// An entry of a table by its name. A name that is not there does not compile.
template <const auto& Table>
class EntryOf {
 public:
  using Entry = std::remove_reference_t<decltype(*Table)>;

  constexpr EntryOf() = default;  // none
  consteval EntryOf(const char* name) : entry_(Find(name)) {}
  constexpr EntryOf(Entry& entry) : entry_(&entry) {}

  constexpr explicit operator bool() const { return entry_ != nullptr; }
  constexpr Entry* operator->() const { return entry_; }
  constexpr Entry& operator*() const { return *entry_; }
  [[nodiscard]] constexpr std::size_t Index() const { return static_cast<std::size_t>(entry_ - Table); }

 private:
  static constexpr Entry* Find(std::string_view name) {
    Entry* found = std::find_if(std::begin(Table), std::end(Table),
                                [name](const Entry& entry) { return entry.name == name; });
    if (found == std::end(Table)) throw "no such entry";
    return found;
  }

  Entry* entry_ = nullptr;
};

using CommandName = EntryOf<Commands>;

// What a press does while the button's command is disabled.
enum class Press {
  Ask,    // runs it all the same, so that it can refuse with its message
  Follow  // nothing
};

struct ToolbarButton {
  const char* name;  // the key that tells it from the others
  const char* tip;
  const char* icon;
  CommandName command = {};  // none where the button does something of its own
  Press press = Press::Ask;
  Need need = Need::Nothing;  // before the command's own
  bool startsGroup = false;
  bool hidden = false;
};

constexpr ToolbarButton InNewGroup(ToolbarButton button) {
  button.startsGroup = true;
  return button;
}

inline constexpr ToolbarButton ToolbarButtons[] = {
    {"Open", "Apri Flash", "open", "ApriFlashInput"},
    {"Save", "Salva Flash", "save", "ApriFlashOutput"},
    InNewGroup({"Canali", "Visualizza Canali", "channels", "VisualizzaCanali"}),
    {"TRANSPONDERS", "Visualizza Transponders", "transponders", "VisualizzaTransponder"},
    {.name = "Rectangle", .tip = "Rectangle", .icon = "", .hidden = true},
    {.name = "New", .tip = "New", .icon = "", .hidden = true},
    InNewGroup({"Copy", "Copia canali selezionati", "copy", "Copia"}),
    {"Paste", "Incolla canali salvati con Copia o Taglia", "paste", "Incolla"},
    {"Cut", "Taglia canali selezionati", "cut", "Taglia"},
    {"Delete", "Elimina i canali selezionati", "delete", "Elimina"},
    {"CanaliXTransponder", "Ricalcola il numero di Canali per transponder", "recount", "CanaliXTransponder"},
    InNewGroup({"Goto", "Vai al Canale Nr.", "goto", "VaiAlCanale", Press::Follow}),
    {"Find", "Ricerca canale per Nome", "find", "CercaCanale"},
    {"Print", "Stampa Canali o Transponders", "print", "StampaGriglia"},
    InNewGroup({"Internet", "Collegamento a SotCodx", "internet", "ScaricaInternet"}),
    {"Apri SDX", "Apri File SDX", "open-sdx", "SDX", Press::Ask, Need::List},
    {"Copy SDX", "Copia canali selezionati SDX", "copy-sdx"},
    {"Find SDX", "Ricerca canale SDX per nome", "find-sdx", "RicercaSDX", Press::Follow},
    InNewGroup({"Fine Programma", "Fine Programma", "exit", "Fine"}),
    InNewGroup(
        {"Undo", "Annulla l'ultima modifica, o più d'una dalla lista", "undo", "Annulla", Press::Follow}),
    {"Redo", "Ripeti la modifica annullata, o più d'una dalla lista", "redo", "Ripeti", Press::Follow},
};

using ButtonName = EntryOf<ToolbarButtons>;

// Builds menus and toolbar with an action of its own for every command and button, each disabled until somebody runs
// it (Actions).
void BuildMenus(QMainWindow& window);
void BuildToolbar(QMainWindow& window);

QAction& CommandAction(const QMainWindow& window, CommandName command);
QAction& ButtonAction(const QMainWindow& window, ButtonName button);

}  // namespace Ui
