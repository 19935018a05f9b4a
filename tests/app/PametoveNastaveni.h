#pragma once

#include "platform/SettingsStore.h"

#include <QMap>

namespace zvonika::testing {

/// A settings store that lives as long as its test.
class PametoveNastaveni : public SettingsStore {
public:
    std::optional<QString> get(const QString& section, const QString& key) const override {
        const auto found = values_.constFind(section + '/' + key);
        return found == values_.constEnd() ? std::nullopt : std::optional(*found);
    }
    void save(const QString& section, const QString& key, const QString& value) override {
        values_[section + '/' + key] = value;
    }
    void nastav(const QString& section, const QString& key, const std::optional<QString>& value) {
        if (value) save(section, key, *value);
    }

private:
    QMap<QString, QString> values_;
};

} // namespace zvonika::testing
