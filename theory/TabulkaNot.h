#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <pugixml.hpp>
#include <vector>

namespace zvonika {

/// The note table "konverze.xml" in the program's folder. An entry is one tone followed through all keys,
/// with one child element per key ("Fisdur"). Entries count from 0; entry 0 is the heading, then come the
/// steps of the scale upwards, and behind them the tones outside the scale, which carry the attribute
/// `mimoStupnici`. Nothing is ever raised: a table that cannot be read has no entries.
class TabulkaNot {
public:
    /// Without entries until the table is read.
    TabulkaNot() = default;
    explicit TabulkaNot(const QString& slozkaProgramu) { nacti(slozkaProgramu); }
    /// Reads the file in this native folder, only now; cheap where it says the same as last time.
    void nacti(const QString& slozkaProgramu);

    int pocet() const { return static_cast<int>(polozky_.size()); }
    /// Number of entries before the first one that lies outside the scale, the heading included.
    int pocetStupnu() const { return pocetStupnu_; }

    /// How the tone is written in the key whose element is `stupnice` ("Cdur"), to the letter; nothing where
    /// the table has no such entry or the entry no such key.
    std::optional<QString> ton(int polozka, const QString& stupnice) const;

    /// One Czech sentence on why the table is of no use, or not whole; "" when it has what it should have.
    const QString& chyba() const { return chyba_; }

private:
    void rozeber();

    QByteArray obsah_;
    pugi::xml_document dokument_;
    std::vector<pugi::xml_node> polozky_;
    int pocetStupnu_ = 0;
    QString chyba_;
};

} // namespace zvonika
