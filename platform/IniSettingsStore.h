#pragma once

#include "platform/SettingsStore.h"

#include <QHash>
#include <QSettings>

namespace zvonika {

/// Settings kept in a UTF-8 INI file, grouped [section] key=value, which nobody but the user may read. A
/// damaged file counts as empty; it is put aside as "<name>.bak" when the first value is saved. A file that
/// cannot be written keeps the values for the run, and so does what is no file of settings at all: a pipe, a
/// device, a folder, or more than a megabyte.
class IniSettingsStore : public SettingsStore {
public:
    /// `file`: full native name; need not exist.
    explicit IniSettingsStore(const QString& file);

    std::optional<QString> get(const QString& section, const QString& key) const override;
    void save(const QString& section, const QString& key, const QString& value) override;

    /// The file of an application's settings in the user's configuration folder.
    static QString fileFor(const QString& application);

private:
    void putDamagedFileAside();

    std::optional<QSettings> settings_; ///< nothing: the values of this run alone
    QHash<QString, QString> ofThisRun_;
    bool damaged_ = false;
};

} // namespace zvonika
