// Every menu command and toolbar button of the window, in one table: control name, caption, place, key and
// icon.
#pragma once

#include <QString>

#include <array>
#include <string_view>

class QAction;
class QMainWindow;

namespace Ui {

enum class Menu { File, Utilities, Sdx, Import, Export, About };

struct Command {
  const char* name;  // control name
  const char* caption;
  Menu menu;
  const char* icon = "";  // file below :/icons, without its ending
  const char* key = "";
  bool checkable = false;
  bool startsGroup = false;  // a line divides it from the command above
  bool forRows = false;      // its key counts only while the grid has the focus
};

constexpr Command Group(Command command) {
  command.startsGroup = true;
  return command;
}

constexpr Command Checkable(Command command) {
  command.checkable = true;
  return command;
}

constexpr Command ForRows(Command command) {
  command.forRows = true;
  return command;
}

inline constexpr std::array Commands = {
    Command{"ApriFlashInput", "Apri Flash Input", Menu::File, "open", "Ctrl+O"},
    Command{"CaricaAggiuntiva", "Carica Flash aggiuntiva", Menu::File},
    Group({"Salva", "Salva", Menu::File, "save", "Ctrl+S"}),
    Command{"ApriFlashOutput", "Salva Flash come", Menu::File, "save-as", "Ctrl+Shift+S"},
    Group({"Fine", "Fine", Menu::File, "exit"}),

    Command{"Annulla", "Annulla", Menu::Utilities, "undo", "Ctrl+Z"},
    Command{"Ripeti", "Ripeti", Menu::Utilities, "redo", "Ctrl+Y"},
    Group(ForRows({"Copia", "Copia", Menu::Utilities, "copy", "Ctrl+C"})),
    ForRows({"Taglia", "Taglia", Menu::Utilities, "cut", "Ctrl+X"}),
    ForRows({"Incolla", "Incolla", Menu::Utilities, "paste", "Ctrl+V"}),
    ForRows({"Elimina", "Elimina", Menu::Utilities, "delete", "Del"}),
    Group(ForRows({"SpostaSu", "Sposta su", Menu::Utilities, "", "Alt+Up"})),
    ForRows({"SpostaGiu", "Sposta giù", Menu::Utilities, "", "Alt+Down"}),
    Command{"SpostaA", "Sposta a…", Menu::Utilities},
    Group({"CaricaImportato", "Carica Canali da file esportato", Menu::Utilities, "import"}),
    Group({"Azzera", "Azzera Canali e Transponder", Menu::Utilities}),
    Command{"OrdinaPerBouquet", "Ordina Canali per Bouquet", Menu::Utilities},
    Command{"SpostaRadio", "Raggruppa RADIO e SERVIZI", Menu::Utilities},
    Command{"CanaliDoppi", "Controlla Canali Doppi", Menu::Utilities},
    Group({"Confronta", "Confronta con un'altra flash…", Menu::Utilities}),
    Command{"ConfrontaDisco", "Confronta con il file su disco", Menu::Utilities},
    Group({"InvertiSatelliti", "Inverti Satelliti", Menu::Utilities}),
    Command{"RiportaAB", "Riporta tutto a SAT A-B", Menu::Utilities},
    Command{"ConvertiSR", "Converti SR", Menu::Utilities, "convert-sr"},
    Group(Checkable({"VisualizzaCanali", "Visualizza Canali", Menu::Utilities, "channels"})),
    Checkable({"VisualizzaTransponder", "Visualizza Transponders", Menu::Utilities, "transponders"}),
    Command{"VisualizzaPreferiti", "Visualizza Preferiti", Menu::Utilities, "favourites"},
    Checkable({"VisualizzaBouquet", "Visualizza Struttura per Bouquet", Menu::Utilities, "bouquet"}),
    Command{"Riepilogo", "Riepilogo", Menu::Utilities},
    Group({"CercaCanale", "Ricerca canale per Nome", Menu::Utilities, "find", "Ctrl+F"}),
    Command{"CercaSuccessivo", "Ricerca successivo", Menu::Utilities, "", "F3"},
    Command{"Filtra", "Filtro", Menu::Utilities, "", "Ctrl+Shift+F"},
    Command{"VaiAlCanale", "Vai al Canale Nr.", Menu::Utilities, "goto", "Ctrl+G"},
    Group({"StampaGriglia", "Stampa", Menu::Utilities, "print", "Ctrl+P"}),

    Command{"ScaricaInternet", "Scarica da Internet", Menu::Sdx, "internet"},
    Command{"SDX", "Carica File (.sdx)", Menu::Sdx, "open-sdx"},
    Group(Checkable({"VediSDX", "Visualizza", Menu::Sdx})),
    Command{"RicercaSDX", "Ricerca", Menu::Sdx, "find-sdx"},
    Command{"StampaSDX", "Stampa", Menu::Sdx, "print"},
    Group({"ImportaTuttoSDX", "Importa tutto SDX", Menu::Sdx, "import"}),

    Command{"DaEsportato", "Da formato FLASH", Menu::Import},
    Command{"DaEsportatoTesto", "Da formato TESTO", Menu::Import},
    Command{"Digiquest", "Da File Digiquest/FortecStar", Menu::Import},
    Command{"Pelko", "Da File Pelko", Menu::Import},
    Command{"FormatoFLASH", "In formato FLASH", Menu::Export},
    Command{"FormatoTesto", "In formato Testo", Menu::Export},
    Command{"FormatoCSV", "In formato CSV", Menu::Export},

    Command{"Guida", "&Guida", Menu::About, "", "F1"},
    Command{"About", "&About", Menu::About, "info"},
};

struct ToolbarButton {
  const char* key;
  const char* tip;
  const char* icon;
  bool startsGroup = false;
  bool hidden = false;
};

inline constexpr std::array ToolbarButtons = {
    ToolbarButton{"Open", "Apri Flash", "open"},
    ToolbarButton{"Save", "Salva Flash", "save"},
    ToolbarButton{"Canali", "Visualizza Canali", "channels", true},
    ToolbarButton{"TRANSPONDERS", "Visualizza Transponders", "transponders"},
    ToolbarButton{"Rectangle", "Rectangle", "", false, true},
    ToolbarButton{"New", "New", "", false, true},
    ToolbarButton{"Copy", "Copia canali selezionati", "copy", true},
    ToolbarButton{"Paste", "Incolla canali salvati con Copia o Taglia", "paste"},
    ToolbarButton{"Cut", "Taglia canali selezionati", "cut"},
    ToolbarButton{"Delete", "Elimina i canali selezionati", "delete"},
    ToolbarButton{"CanaliXTransponder", "Ricalcola il numero di Canali per transponder", "recount"},
    ToolbarButton{"Goto", "Vai al Canale Nr.", "goto", true},
    ToolbarButton{"Find", "Ricerca canale per Nome", "find"},
    ToolbarButton{"Print", "Stampa Canali o Transponders", "print"},
    ToolbarButton{"Internet", "Collegamento a SotCodx", "internet", true},
    ToolbarButton{"Apri SDX", "Apri File SDX", "open-sdx"},
    ToolbarButton{"Copy SDX", "Copia canali selezionati SDX", "copy-sdx"},
    ToolbarButton{"Find SDX", "Ricerca canale SDX per nome", "find-sdx"},
    ToolbarButton{"Fine Programma", "Fine Programma", "exit", true},
};

// Builds menus and toolbar with an action of its own for every command and button, each disabled: whoever
// makes a command work enables it.
void BuildMenus(QMainWindow& window);
void BuildToolbar(QMainWindow& window);

// What a menu command does, for the status bar; empty where the name is none.
QString CommandTip(std::string_view name);

// The action of a menu command, or of a toolbar button by its key. The name must be one of the tables'.
QAction& CommandAction(const QMainWindow& window, const char* name);
QAction& ButtonAction(const QMainWindow& window, const char* key);

}  // namespace Ui
