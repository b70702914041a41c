#include "ui/session/filter_texts.h"

namespace Ui {
namespace {

constexpr const char* Words =
    "Parole del filtro, in qualunque ordine; maiuscole e accenti non contano.\n\n"
    "rai hd – canali che hanno nel nome l'una e l'altra\n"
    "\"rai 1\" – proprio questo testo nel nome\n"
    "11766 – nel nome, o SID, transponder o frequenza (entro 3 MHz)\n"
    "sat:A – il satellite\n"
    "f:11766 – la frequenza in MHz\n"
    "tp:12 – il transponder\n"
    "sid:3401 – il SID\n"
    "cod:04 – la codifica\n"
    "bq:sky – il bouquet\n"
    "pref:3 – i canali della terza lista di preferiti\n"
    "tv   radio   servizi – il tipo\n"
    "inattivi   doppi – quelli non attivi, quelli che ci sono più volte\n"
    "-radio – tutto tranne questo\n\n"
    "Due parole dello stesso genere valgono l'una o l'altra: sat:A sat:B.\n"
    "Invio e le frecce vanno da un trovato all'altro, Ctrl+A li seleziona tutti, Esc svuota il filtro.";

}  // namespace

void FollowFilter(Session& session, FilterBar& filter, Finder& hits, const QString& rows) {
  QObject::connect(&filter, &FilterBar::HelpWanted, &filter,
                   [&session] { session.dialogs.Message(Words, "Filtro", Tone::Information); });
  QObject::connect(&hits, &Finder::HiddenChanged, &filter, [&session, rows](int count) {
    session.status.ShowHidden(
        rows,
        count == 0 ? QString() : QString("Nascoste %1 %2: Solo i trovati le mostra").arg(count).arg(rows));
  });
  QObject::connect(&hits, &Finder::LeftOnly, &filter, [&session] {
    session.status.Remark("Solo i trovati tolto, perché la riga era nascosta");
  });
}

}  // namespace Ui
