#include "platform/IniSettingsStore.h"

#include "platform/files/RegularFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zvonika {

namespace {

constexpr qint64 largestFile = 1 << 20; ///< bytes; ours have some hundreds

QString entry(const QString& section, const QString& key) {
    return section + QLatin1Char('/') + key;
}

// A value with commas that was written by hand is read as a list; to this program it is one text.
QString asText(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", "))
                                                    : value.toString();
}

bool canHoldSettings(const QString& file) {
    const std::error_code trouble = readRegular(file, Links::Follow, largestFile).trouble;
    return !trouble || trouble == std::errc::no_such_file_or_directory ||
           trouble == std::errc::permission_denied;
}

/// The store's own lock, too, is opened by its name and waited for.
bool canHoldLock(const QString& file) {
    constexpr qint64 largestLock = 4096;
    const auto trouble = readRegular(file + QStringLiteral(".lock"), Links::Refuse, largestLock).trouble;
    return !trouble || trouble == std::errc::no_such_file_or_directory;
}

void closeToOthers(const QString& file) {
    constexpr auto ownersOnly = QFile::ReadOwner | QFile::WriteOwner;
    QDir().mkpath(QFileInfo(file).path());
    QFile settings(file);
    if (settings.exists())
        settings.setPermissions(ownersOnly);
    else if (settings.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownersOnly))
        settings.close();
}

// Sections are parsed when they are first asked for; a fault shows only after all of them have been.
bool isDamaged(const QSettings& settings) {
    settings.allKeys();
    return settings.status() == QSettings::FormatError;
}

} // namespace

IniSettingsStore::IniSettingsStore(const QString& file) {
    if (!canHoldSettings(file) || !canHoldLock(file)) return;
    settings_.emplace(file, QSettings::IniFormat);
    damaged_ = isDamaged(*settings_);
}

QString IniSettingsStore::fileFor(const QString& application) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(application + QStringLiteral(".ini"));
}

std::optional<QString> IniSettingsStore::get(const QString& section, const QString& key) const {
    const QString name = entry(section, key);
    if (const auto value = ofThisRun_.constFind(name); value != ofThisRun_.constEnd()) return *value;
    if (!settings_ || damaged_ || !settings_->contains(name)) return std::nullopt;
    return asText(settings_->value(name));
}

void IniSettingsStore::save(const QString& section, const QString& key, const QString& value) {
    if (!settings_) {
        ofThisRun_.insert(entry(section, key), value);
        return;
    }
    if (damaged_) putDamagedFileAside();
    closeToOthers(
        settings_->fileName()); // before it is written: the new file takes the rights of the old one
    settings_->setValue(entry(section, key), value);
    settings_->sync();
}

void IniSettingsStore::putDamagedFileAside() {
    const QString file = settings_->fileName();
    const QString aside = file + QStringLiteral(".bak");
    QFile::remove(aside);
    QFile::copy(file, aside);
    settings_->clear();
    damaged_ = false;
}

} // namespace zvonika
