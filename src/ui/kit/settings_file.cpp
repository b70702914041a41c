#include "ui/kit/settings_file.h"

#include "base/file.h"
#include "ui/kit/text.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cerrno>

namespace Ui {
namespace {

constexpr std::size_t Largest = 1U << 20U;

// What the file holds; nothing of a missing one.
Base::Result<Base::Bytes> Contents(const QString& path) {
  auto bytes = Base::ReadFile(PathBytes(path), Largest);
  if (!bytes && bytes.error().systemCode == ENOENT) return Base::Bytes{};
  return bytes;
}

}  // namespace

QString SettingsFault(const QString& path) {
  const auto bytes = Contents(path);
  return bytes ? QString() : Text(bytes.error().message);
}

void ReadSettings(const QString& path, const std::function<void(QSettings&)>& read) {
  if (const auto bytes = Contents(path); !bytes || bytes->empty()) return;
  QSettings settings(path, QSettings::IniFormat);
  read(settings);
}

QVariant Setting(const QString& path, const QString& key) {
  QVariant value;
  ReadSettings(path, [&](const QSettings& settings) { value = settings.value(key); });
  return value;
}

// In a copy of its own, as QSettings replaces the file that it has read.
void ChangeSettings(const QString& path, const std::function<void(QSettings&)>& change) {
  const auto before = Contents(path);
  const QTemporaryDir folder;
  QFile copy(folder.filePath("trovalis.ini"));
  if (!before || !folder.isValid() || !copy.open(QFile::WriteOnly)) return;
  copy.write(reinterpret_cast<const char*>(before->data()), static_cast<qint64>(before->size()));
  copy.close();
  QSettings settings(copy.fileName(), QSettings::IniFormat);
  change(settings);
  settings.sync();
  const auto after = Base::ReadFile(PathBytes(copy.fileName()), Largest);
  if (settings.status() == QSettings::NoError && after && *after != *before)
    static_cast<void>(Base::ReplaceFile(PathBytes(path), *after));
}

void KeepSetting(const QString& path, const QString& key, const QVariant& value) {
  ChangeSettings(path, [&](QSettings& settings) {
    value.isValid() ? settings.setValue(key, value) : settings.remove(key);
  });
}

}  // namespace Ui
