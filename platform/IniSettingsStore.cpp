#include "platform/IniSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace zvonika {

namespace {

QString entry(const QString& section, const QString& key) {
    return section + QLatin1Char('/') + key;
}

// A value with commas that was written by hand is read as a list; to this program it is one text.
QString asText(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", "))
                                                    : value.toString();
}

// Sections are parsed when they are first asked for; a fault shows only after all of them have been.
bool isDamaged(const QSettings& settings) {
    settings.allKeys();
    return settings.status() == QSettings::FormatError;
}

} // namespace

IniSettingsStore::IniSettingsStore(const QString& file)
    : settings_(file, QSettings::IniFormat), damaged_(isDamaged(settings_)) {}

QString IniSettingsStore::fileFor(const QString& application) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(application + QStringLiteral(".ini"));
}

std::optional<QString> IniSettingsStore::get(const QString& section, const QString& key) const {
    const QString name = entry(section, key);
    if (damaged_ || !settings_.contains(name)) return std::nullopt;
    return asText(settings_.value(name));
}

void IniSettingsStore::save(const QString& section, const QString& key, const QString& value) {
    if (damaged_) putDamagedFileAside();
    settings_.setValue(entry(section, key), value);
    settings_.sync();
}

void IniSettingsStore::putDamagedFileAside() {
    const QString file = settings_.fileName();
    const QString aside = file + QStringLiteral(".bak");
    QFile::remove(aside);
    QFile::copy(file, aside);
    settings_.clear();
    damaged_ = false;
}

} // namespace zvonika
