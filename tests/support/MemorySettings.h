#pragma once

#include "platform/SettingsStore.h"

#include <map>

namespace zvonika::testing {

/// A settings store that forgets everything with the test.
class MemorySettings : public SettingsStore {
public:
    std::optional<QString> get(const QString& section, const QString& key) const override {
        const auto found = values.find(section + QLatin1Char('/') + key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void save(const QString& section, const QString& key, const QString& value) override {
        values[section + QLatin1Char('/') + key] = value;
    }
    std::map<QString, QString> values;
};

} // namespace zvonika::testing
