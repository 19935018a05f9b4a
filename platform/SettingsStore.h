#pragma once

#include <QString>

#include <optional>

namespace zvonika {

/// Per-user settings of one application, text values by section and key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The stored text, or nothing when there is no such entry or the store cannot be read.
    virtual std::optional<QString> get(const QString& section, const QString& key) const = 0;

    /// Stores at once. A store that cannot be written keeps the value for the rest of the run.
    virtual void save(const QString& section, const QString& key, const QString& value) = 0;

    QString getOr(const QString& section, const QString& key, const QString& fallback) const {
        return get(section, key).value_or(fallback);
    }
};

} // namespace zvonika
