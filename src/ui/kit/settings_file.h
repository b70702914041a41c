// trovalis.ini, read and written as carefully as every other file: QSettings itself opens whatever is there.
#pragma once

#include <QString>
#include <QVariant>

#include <functional>

class QSettings;

namespace Ui {

// Why the file at `path` can be no settings file, be it a device, a file larger than settings ever are, or one that may
// not be read; empty where it can, or is not there yet.
QString SettingsFault(const QString& path);

// Runs `read` on what the file holds. Not where there is none or where it can be no settings file.
void ReadSettings(const QString& path, const std::function<void(QSettings&)>& read);
QVariant Setting(const QString& path, const QString& key);

// Runs `change` on what the file holds and replaces it, if anything is different then. Nothing happens where it can be no
// settings file or cannot be written: settings are not worth a question.
void ChangeSettings(const QString& path, const std::function<void(QSettings&)>& change);
// A value that is not valid takes the setting out.
void KeepSetting(const QString& path, const QString& key, const QVariant& value);

}  // namespace Ui
