#pragma once

#include "platform/SettingsStore.h"

#include <QSettings>

namespace zvonika {

/// Settings kept in a UTF-8 INI file, grouped [section] key=value. A damaged file counts as empty; it is put
/// aside as "<name>.bak" when the first value is saved. A file that cannot be written keeps the values for
/// the run.
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

    QSettings settings_;
    bool damaged_;
};

} // namespace zvonika
