#include "ui/sources/foreign_settings.h"

#include "base/code_page.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/settings_file.h"
#include "ui/kit/text.h"

#include <QSettings>

namespace Ui {

using namespace Formats;

namespace {

void Store(QSettings& settings, const QString& group, const ForeignLayout& layout) {
  settings.remove(group);
  settings.beginGroup(group);
  settings.setValue("Separatore", static_cast<int>(layout.separator));
  settings.setValue("Virgolette", layout.quotes);
  settings.setValue("Intestazione", layout.header);
  QStringList starts;
  for (const std::size_t start : layout.starts) starts += QString::number(start);
  settings.setValue("Inizi", starts);
  settings.beginWriteArray("Colonne", static_cast<int>(layout.columns.size()));
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    settings.setArrayIndex(static_cast<int>(i));
    settings.setValue("Contenuto", static_cast<int>(layout.columns[i].meaning));
    settings.setValue("Esadecimale", layout.columns[i].hexadecimal);
    settings.setValue("Titolo", CodePageText(layout.columns[i].title));
  }
  settings.endArray();
}

std::optional<ForeignLayout> Stored(QSettings& settings, const QString& group) {
  settings.beginGroup(group);
  const int separator = settings.value("Separatore", -1).toInt();
  if (separator < 0 || separator > static_cast<int>(Separator::Columns)) return std::nullopt;
  ForeignLayout layout;
  layout.separator = static_cast<Separator>(separator);
  layout.quotes = settings.value("Virgolette").toBool();
  layout.header = settings.value("Intestazione").toBool();
  for (const QString& start : settings.value("Inizi").toStringList())
    layout.starts.push_back(start.toULongLong());
  if (!std::is_sorted(layout.starts.begin(), layout.starts.end())) return std::nullopt;
  const int count = settings.beginReadArray("Colonne");
  for (int i = 0; i < count && i < static_cast<int>(MostForeignColumns); ++i) {
    settings.setArrayIndex(i);
    const auto meaning = settings.value("Contenuto").toUInt();
    if (meaning >= Meanings) return std::nullopt;
    layout.columns.push_back({static_cast<Meaning>(meaning), settings.value("Esadecimale").toBool(),
                              Base::FromUtf8Lossy(settings.value("Titolo").toString().toStdString())});
  }
  return layout;
}

}  // namespace

void RememberLayout(const QString& iniFile, const QString& group, const ForeignLayout& layout) {
  ChangeSettings(iniFile, [&](QSettings& settings) { Store(settings, group, layout); });
}

std::optional<ForeignLayout> RememberedLayout(const QString& iniFile, const QString& group) {
  std::optional<ForeignLayout> layout;
  ReadSettings(iniFile, [&](QSettings& settings) { layout = Stored(settings, group); });
  return layout;
}

}  // namespace Ui
