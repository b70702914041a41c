#include "cli/options.h"

#include "base/text.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <array>

namespace Cli {
namespace {

constexpr const char* LineOptions = "Opzioni";

// A check whose refusal is a sentence of ours; the library puts the option's name in front of it.
CLI::Validator Refusing(const std::string& refusal, const std::function<bool(const std::string&)>& fits) {
  return {[refusal, fits](const std::string& text) { return fits(text) ? std::string() : refusal; }, ""};
}

CLI::Validator Number(int least, int most) {
  return Refusing("deve essere un numero da " + std::to_string(least) + " a " + std::to_string(most),
                  [least, most](std::string_view text) {
                    const int value = Base::TakeNumber(text, most);
                    return text.empty() && value >= least && value <= most;
                  });
}

CLI::Validator OneOf(const std::vector<std::string>& words) {
  std::string all;
  for (const std::string& word : words) all += (all.empty() ? "" : ", ") + word;
  return Refusing("deve essere uno fra " + all, [words](const std::string& text) {
    return std::find(words.begin(), words.end(), text) != words.end();
  });
}

// "A", or "A=S13.0E".
CLI::Validator Satellite() {
  return Refusing("deve essere una lettera, come A, o lettera e posizione, come A=S13.0E",
                  [](const std::string& text) {
                    const bool letter = !text.empty() && text.front() >= 'A' && text.front() <= 'Z';
                    return letter && (text.size() == 1 || (text.size() > 2 && text[1] == '='));
                  });
}

// The commands and their options; those of the one that is wanted alone, as every other's would take time for nothing.
class Line {
 public:
  Line(Options& options, const std::string& wanted)
      : options_(options), app_("Liste di canali dei ricevitori satellitari, senza finestra.") {
    SetUp(app_);
    app_.name("trovalis-cli");
    app_.set_version_flag("--version", "trovalis-cli " TROVALIS_VERSION, "mostra la versione")
        ->group(LineOptions);
    app_.require_subcommand(1);
    app_.footer(
        "\"trovalis-cli COMANDO --help\" dice di più. Esce con 0 fatto, 1 differenze o cose da controllare,\n"
        "2 riga di comando errata, 3 file illeggibile, 4 file non scritto. \"-\" al posto di un file è\n"
        "l'ingresso o l'uscita standard.");
    for (const Entry& entry : Entries) Add(entry, entry.name == wanted);
  }

  CLI::App& App() { return app_; }

  static bool Knows(std::string_view command) {
    return std::any_of(Entries.begin(), Entries.end(),
                       [command](const Entry& entry) { return entry.name == command; });
  }

 private:
  static void SetUp(CLI::App& app) {
    app.allow_windows_style_options(false);  // "/" begins a path, there too
    app.set_help_flag("-h,--help", "mostra questo aiuto");
    app.get_help_ptr()->group(LineOptions);
    const auto format = app.get_formatter();
    for (const auto& [key, text] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Usage", "Uso"},
                                                                    {"OPTIONS", "OPZIONI"},
                                                                    {"SUBCOMMAND", "COMANDO"},
                                                                    {"SUBCOMMANDS", "COMANDI"},
                                                                    {"Positionals", "Argomenti"},
                                                                    {"REQUIRED", ""},
                                                                    {"Excludes", "non con"}})
      std::static_pointer_cast<CLI::Formatter>(format)->label(key, text);
    std::static_pointer_cast<CLI::Formatter>(format)->column_width(26);
  }

  struct Entry {
    Command command;
    std::string_view name;
    const char* does;
    void (Line::*add)(CLI::App&);  // its options
  };
  static const std::array<Entry, 11> Entries;

  void Add(const Entry& entry, bool wanted) {
    CLI::App& added = *app_.add_subcommand(std::string(entry.name), entry.does)->group("Comandi");
    if (!wanted) return;
    SetUp(added);
    added.callback([this, command = entry.command] { options_.command = command; });
    (this->*entry.add)(added);
    File(added, "--support", options_.support, "cartella di SR.INI e Bouquets.txt", "CARTELLA");
    added.add_flag("--json", options_.json, "risultato in JSON")->group(LineOptions);
    added.add_flag("--dry-run", options_.dryRun, "non scrive niente, dice che cosa farebbe")
        ->group(LineOptions);
  }

  static CLI::Option* File(CLI::App& app, const char* name, std::string& to, const char* what,
                           const char* type = "FILE") {
    return app.add_option(name, to, what)->type_name(type)->group(LineOptions);
  }

  static void Positional(CLI::App& app, const char* name, std::string& to, const char* what) {
    app.add_option(name, to, what)->required()->type_name("");
  }

  // One value each time, or the words behind it would be taken for more of them.
  static CLI::Option* Several(CLI::App& app, const char* name, std::vector<std::string>& to, const char* what,
                              const char* type) {
    return app.add_option(name, to, what)->allow_extra_args(false)->type_name(type)->group(LineOptions);
  }

  CLI::Option* Capacity(CLI::App& app, const char* what) {
    return app.add_option("--capacity", options_.capacity, what)->type_name("N")->group(LineOptions);
  }

  // An image does not say by which of the two tables its rates are.
  void Rate(CLI::App& app, bool required) {
    app.add_option("--sr", options_.rate22000,
                   required ? "dove è SR 22000: \"come 2\" o \"come 0\"; va sempre detto"
                            : "dove è SR 22000: \"come 2\" o \"come 0\" (2)")
        ->type_name("N")
        ->check(OneOf({"0", "2"}))
        ->required(required)
        ->group(LineOptions);
  }

  void Reading(CLI::App& app) {
    Capacity(app, "canali che il ricevitore può tenere (3996)")->check(Number(1, 3996));
    Rate(app, false);
  }

  void Satellites(CLI::App& app) {
    Several(app, "--sat", options_.satellites,
            "satellite di una posizione (A=S13.0E), o di tutte le righe (A)", "SAT")
        ->check(Satellite());
  }

  void Rows(CLI::App& app) {
    Satellites(app);
    app.add_flag("--hd", options_.keepHd, "tiene anche DVB-S2 e HD")->group(LineOptions);
    app.add_flag("--data", options_.data, "tiene anche i servizi dati")->group(LineOptions);
  }

  void Filter(CLI::App& app) {
    File(app, "--filter", options_.filter, "solo i canali che le parole del filtro trovano", "PAROLE");
  }

  void Force(CLI::App& app) {
    app.add_flag("--force", options_.force, "sostituisce un file che c'è già, tenendone una copia .bak")
        ->group(LineOptions);
  }

  void Image(CLI::App& app) { Positional(app, "IMG", options_.second, "immagine della flash"); }

  // Of commands that only look at an image.
  void AddReader(CLI::App& app) {
    Positional(app, "IMG", options_.first, "immagine della flash");
    Reading(app);
  }

  void AddList(CLI::App& list) {
    AddReader(list);
    Filter(list);
    Satellites(list);
    AddForms(list);
  }

  void AddForms(CLI::App& list) {
    std::vector<CLI::Option*> forms;
    for (const auto& [name, form, what] :
         std::initializer_list<std::tuple<const char*, ListForm, const char*>>{
             {"--csv", ListForm::Csv, "per fogli di calcolo"},
             {"--text", ListForm::Text, "nel formato testo"},
             {"--vdr", ListForm::Vdr, "come channels.conf; vuole --sat per ogni satellite"}}) {
      const ListForm chosen = form;
      forms.push_back(list.add_flag_function(
                              name, [this, chosen](std::int64_t) { options_.form = chosen; }, what)
                          ->group(LineOptions));
      for (std::size_t i = 0; i + 1 < forms.size(); ++i) forms.back()->excludes(forms[i]);
    }
  }

  void AddDiff(CLI::App& diff) {
    Positional(diff, "A", options_.first, "immagine o lista");
    Positional(diff, "B", options_.second, "immagine o lista");
    Reading(diff);
    Rows(diff);
  }

  void AddSdx(CLI::App& sdx) {
    Positional(sdx, "FILE", options_.first, "lista");
    Rows(sdx);
  }

  void AddConvert(CLI::App& convert) {
    Positional(convert, "IN", options_.first, "immagine o lista");
    Positional(convert, "OUT", options_.second, "file da scrivere: .txt, .fls, .csv o .conf");
    Reading(convert);
    Rows(convert);
    Force(convert);
    File(convert, "--to", options_.target, "formato, se il nome non lo dice: text, fls, csv o vdr", "FORMATO")
        ->check(OneOf({"text", "fls", "csv", "vdr"}));
  }

  // Of commands that write an image; a `typed` one, which puts another list there, has to say the flash's type and the
  // place of SR 22000.
  void Writing(CLI::App& app, bool typed) {
    Capacity(app, "canali che il ricevitore può tenere: 999, 2000 o 3996; va sempre detto")
        ->required()
        ->check(OneOf({"999", "2000", "3996"}));
    auto* type = app.add_option("--type", options_.type,
                                typed ? "tipo di flash: 1, 2 o 3; va sempre detto"
                                      : "tipo di flash: 1, 2 o 3 (quello che ha quei canali)")
                     ->type_name("N");
    type->check(Number(1, 3))->required(typed)->group(LineOptions);
    Rate(app, typed);
    auto* output = File(app, "-o,--output", options_.output, "immagine da scrivere");
    const std::string inPlace = "scrive nell'immagine stessa, tenendone una copia .bak";
    app.add_flag("--in-place", options_.inPlace,
                 typed ? inPlace : inPlace + "; di una letta in parte solo con --force")
        ->excludes(output)
        ->group(LineOptions);
    Force(app);
  }

  void AddWrite(CLI::App& write) {
    Positional(write, "LIST", options_.first, "immagine o lista");
    Positional(write, "TEMPLATE", options_.second, "immagine del ricevitore");
    Writing(write, true);
    Rows(write);
  }

  void AddApply(CLI::App& apply) {
    Positional(apply, "LIST", options_.first, "immagine o lista");
    Image(apply);
    Writing(apply, false);
    Rows(apply);
    Several(apply, "--only", options_.only,
            "che cosa prendere, va sempre detto: new, deleted, moved, renamed, retuned, pids, modified, "
            "favourites",
            "TIPI")
        ->delimiter(',')
        ->required()
        ->check(OneOf({"new", "deleted", "moved", "renamed", "retuned", "pids", "modified", "favourites"}));
    File(apply, "--place", options_.place, "dove vanno i nuovi: behind, holes o bouquet (behind)", "DOVE")
        ->check(OneOf({"behind", "holes", "bouquet"}));
  }

  void AddOrder(CLI::App& order) {
    Positional(order, "ORDER", options_.first, "elenco, lista o immagine");
    Image(order);
    Writing(order, false);
    order.add_flag("--numbers", options_.listed, "i canali prendono i numeri dell'elenco")
        ->group(LineOptions);
  }

  void AddSort(CLI::App& sort) {
    Image(sort);
    Writing(sort, false);
    Several(sort, "--by", options_.keys,
            "chiavi, va sempre detto: fino a tre fra name, kind, satellite, bouquet, frequency, sid, coding, "
            "hd, favourites, active",
            "CHIAVI")
        ->delimiter(',')
        ->required()
        ->check(OneOf({"name", "kind", "satellite", "bouquet", "frequency", "sid", "coding", "hd",
                       "favourites", "active"}));
    sort.add_option("--from", options_.from, "primo canale da ordinare (1)")
        ->type_name("N")
        ->check(Number(1, 3996))
        ->group(LineOptions);
    sort.add_option("--multiple", options_.multiple, "ogni gruppo comincia a un multiplo di N")
        ->type_name("N")
        ->check(Number(0, 3996))
        ->group(LineOptions);
  }

  void AddRename(CLI::App& rename) {
    Image(rename);
    Writing(rename, false);
    Filter(rename);
    Several(
        rename, "--rule", options_.rules,
        "regola, va sempre detta: sostituisci/HD//, togli-dietro/TEST/, iniziali, ...; più volte, in ordine",
        "REGOLA")
        ->required();
  }

  Options& options_;
  CLI::App app_;
};

const std::array<Line::Entry, 11> Line::Entries = {
    {{Command::Info, "info", "che cosa contiene un'immagine", &Line::AddReader},
     {Command::List, "list", "i canali di un'immagine", &Line::AddList},
     {Command::Check, "check", "che cosa c'è da controllare in un'immagine", &Line::AddReader},
     {Command::Diff, "diff", "che cosa è diverso fra due liste", &Line::AddDiff},
     {Command::Sdx, "sdx", "che cosa ha una lista SatcoDX o d'altri programmi, e che cosa si scarta",
      &Line::AddSdx},
     {Command::Convert, "convert", "porta una lista in un altro formato", &Line::AddConvert},
     {Command::Write, "write", "mette una lista in una copia di un'immagine", &Line::AddWrite},
     {Command::Apply, "apply", "prende da una lista ciò che è diverso", &Line::AddApply},
     {Command::Order, "order", "ordina i canali come un elenco", &Line::AddOrder},
     {Command::Sort, "sort", "ordina i canali", &Line::AddSort},
     {Command::Rename, "rename", "cambia i nomi dei canali", &Line::AddRename}}};

// The command that arguments begin with; empty where they name none.
std::string WantedIn(const std::vector<std::string>& arguments) {
  const auto word = std::find_if(arguments.begin(), arguments.end(),
                                 [](const std::string& argument) { return !argument.starts_with('-'); });
  return word == arguments.end() ? std::string() : *word;
}

// The library's sentences in the words of the program.
std::string Refusal(const CLI::ParseError& error) {
  std::string said = error.what();
  const auto before = [&said](std::string_view mark) { return said.substr(0, said.find(mark)); };
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr)
    return "argomento non previsto: " + said.substr(said.find(": ") + 2);
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr)
    return said.starts_with("A subcommand") ? "manca il comando" : "manca " + before(" is required");
  if (dynamic_cast<const CLI::ExcludesError*>(&error) != nullptr)
    return before(" excludes ") + " non va con " + said.substr(said.rfind(' ') + 1);
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
    return said.ends_with(" missing") ? before(":") + ": manca il valore"
                                      : "opzione data più di una volta, o senza il suo valore";
  return said;
}

}  // namespace

Parsed Parse(const std::vector<std::string>& arguments) {
  Options options;
  const std::string wanted = WantedIn(arguments);
  Line line(options, wanted);
  try {
    line.App().parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForVersion& version) {
    return {std::nullopt, std::string(version.what()) + "\n", true};
  } catch (const CLI::Success&) {
    return {std::nullopt, line.App().help(), true};
  } catch (const CLI::ParseError& error) {
    const bool unknown = !wanted.empty() && !Line::Knows(wanted);
    return {std::nullopt, unknown ? "comando sconosciuto: " + wanted : Refusal(error), false};
  }
  return {options, {}, false};
}

}  // namespace Cli
