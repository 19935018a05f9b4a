#include "platform/IniSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace zvonika {

namespace {

QString entry(const QString& section, const QString& key)
{
    return section + QLatin1Char('/') + key;
}

// A value with commas that was written by hand is read as a list; to this program it is one text.
QString asText(const QVariant& value)
{
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", "))
                                                    : value.toString();
}

std::unique_ptr<QSettings> openIni(const QString& file)
{
    return std::make_unique<QSettings>(file, QSettings::IniFormat);
}

} // namespace

IniSettingsStore::IniSettingsStore(const QString& file)
    : file_(file), settings_(openIni(file)), damaged_(settings_->status() == QSettings::FormatError)
{
}

QString IniSettingsStore::fileFor(const QString& application)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(application + QStringLiteral(".ini"));
}

std::optional<QString> IniSettingsStore::get(const QString& section, const QString& key) const
{
    const QString name = entry(section, key);
    if (damaged_ || !settings_->contains(name)) return std::nullopt;
    return asText(settings_->value(name));
}

void IniSettingsStore::save(const QString& section, const QString& key, const QString& value)
{
    if (damaged_) putDamagedFileAside();
    settings_->setValue(entry(section, key), value);
    settings_->sync();
}

void IniSettingsStore::putDamagedFileAside()
{
    const QString aside = file_ + QStringLiteral(".bak");
    settings_->clear();
    settings_.reset();
    QFile::remove(aside);
    QFile::rename(file_, aside);
    settings_ = openIni(file_);
    damaged_ = false;
}

} // namespace zvonika
