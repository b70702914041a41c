// What each menu command does, in one line: shown in the status bar while the user is on it.
#pragma once

#include <array>
#include <utility>

namespace Ui {

inline constexpr std::array<std::pair<const char*, const char*>, 49> CommandTips = {{
    {"ApriFlashInput", "Apre l'immagine della flash di un ricevitore, o la accoda a quella aperta"},
    {"CaricaAggiuntiva", "Mostra i canali di una seconda flash, da cui prenderne per la lista"},
    {"Salva", "Riscrive la lista nella flash di output"},
    {"ApriFlashOutput", "Scrive la lista in un'immagine esistente del ricevitore"},
    {"Fine", "Chiude il programma; le modifiche non salvate vengono offerte al prossimo avvio"},
    {"Annulla", "Torna a com'era la lista prima dell'ultima modifica"},
    {"Ripeti", "Rifà la modifica annullata"},
    {"Copia", "Copia i canali selezionati"},
    {"Taglia", "Toglie i canali selezionati per incollarli altrove"},
    {"Incolla", "Inserisce i canali copiati o tagliati al numero che si indica"},
    {"Elimina", "Elimina i canali selezionati; quelli che seguono risalgono"},
    {"SpostaSu", "Sposta le righe selezionate di un posto in su"},
    {"SpostaGiu", "Sposta le righe selezionate di un posto in giù"},
    {"SpostaA", "Sposta le righe selezionate al numero che si indica"},
    {"CaricaImportato", "Carica una lista esportata in formato Testo"},
    {"Azzera", "Svuota canali e transponder della lista; i preferiti restano"},
    {"OrdinaPerBouquet", "Raggruppa i canali per bouquet e transponder"},
    {"SpostaRadio", "Mette radio e servizi in fondo alla lista, dopo i canali TV"},
    {"CanaliDoppi", "Cerca i canali che sono nella lista più di una volta"},
    {"InvertiSatelliti", "Scambia i satelliti A con B, C con D"},
    {"RiportaAB", "Riporta tutti i transponder ai satelliti A e B"},
    {"ConvertiSR", "Ricodifica i symbol rate come dice Definizione SR 22000"},
    {"VisualizzaCanali", "Mostra o chiude la lista dei canali"},
    {"VisualizzaTransponder", "Mostra o chiude la lista dei transponder"},
    {"VisualizzaPreferiti", "Apre le otto liste dei preferiti"},
    {"VisualizzaBouquet", "Mostra la lista come albero di satelliti, bouquet e transponder"},
    {"CercaCanale", "Cerca un canale per nome"},
    {"CercaSuccessivo", "Va al prossimo canale trovato"},
    {"Filtra", "Segna nella griglia i canali con un nome, un SID o un transponder"},
    {"VaiAlCanale", "Va al canale con il numero che si indica"},
    {"StampaGriglia", "Stampa la lista mostrata, o le righe selezionate"},
    {"ScaricaInternet", "Scarica una lista SatcoDX da un indirizzo"},
    {"SDX", "Carica una lista SatcoDX accanto ai canali"},
    {"VediSDX", "Mostra o chiude la lista accanto ai canali"},
    {"RicercaSDX", "Cerca un canale nella lista SatcoDX"},
    {"StampaSDX", "Stampa la lista SatcoDX"},
    {"ImportaTuttoSDX", "Porta tutti i canali della lista SatcoDX nella propria"},
    {"DaEsportato", "Carica una lista esportata in formato FLASH"},
    {"DaEsportatoTesto", "Carica una lista esportata in formato Testo"},
    {"Digiquest", "Carica una lista di testo di altri ricevitori, scegliendone le colonne"},
    {"Pelko", "Carica una lista di testo di altri ricevitori, scegliendone le colonne"},
    {"FormatoFLASH", "Copia la flash aperta in un file .fls"},
    {"FormatoTesto", "Scrive la lista in un file di testo"},
    {"Guida", "Apre la guida"},
    {"About", "Dice che programma è questo"},
    {"Riepilogo", "Dice che cosa c'è nella lista e che cosa controllare"},
    {"Confronta", "Confronta la lista con quella di un'altra flash"},
    {"ConfrontaDisco", "Mostra che cosa cambierebbe salvando"},
    {"FormatoCSV", "Scrive la lista in un file per fogli di calcolo"},
}};

}  // namespace Ui
