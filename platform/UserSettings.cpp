#include "platform/UserSettings.h"

#include "platform/IniSettingsStore.h"

#include <QDir>
#include <QStandardPaths>

namespace zvonika {

#ifdef Q_OS_WIN

namespace {

// The place and the value type (text only) are those of SaveSetting/GetSetting, so that settings are shared.
class RegistrySettingsStore : public SettingsStore {
public:
    explicit RegistrySettingsStore(const QString& application)
        : settings_(QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\") +
                        application,
                    QSettings::NativeFormat) {}

    std::optional<QString> get(const QString& section, const QString& key) const override {
        const QVariant value = settings_.value(section + QLatin1Char('/') + key);
        return value.isValid() ? std::optional(value.toString()) : std::nullopt;
    }

    void save(const QString& section, const QString& key, const QString& value) override {
        settings_.setValue(section + QLatin1Char('/') + key, value);
        settings_.sync();
    }

private:
    QSettings settings_;
};

} // namespace

std::unique_ptr<SettingsStore> userSettings(const QString& application) {
    return std::make_unique<RegistrySettingsStore>(application);
}

QString userStateFolder(const QString& application) {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)).filePath(application);
}

#else

std::unique_ptr<SettingsStore> userSettings(const QString& application) {
    return std::make_unique<IniSettingsStore>(IniSettingsStore::fileFor(application));
}

QString userStateFolder(const QString& application) {
    QString root = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(root)) root = QDir::homePath() + QStringLiteral("/.local/state");
    return QDir(root).filePath(application);
}

#endif

} // namespace zvonika
