#pragma once

#include <QHash>
#include <QString>

#include <pugixml.hpp>
#include <vector>

namespace zvonika {

/// The names of the bass buttons as they are written into songs, from the table "tonavox.xml" in the
/// program's folder. Nothing is ever raised: a table that cannot be read leaves all names unknown, a table
/// with faults keeps the entries that are good, and `chyba` tells what is wrong.
class BassTable {
public:
    /// `slozkaProgramu`: native folder of the table, which is loaded at once; `pocetBasu`: how many buttons
    /// the instrument has.
    BassTable(const QString& slozkaProgramu, int pocetBasu);

    /// Loads the table afresh; true when it is whole.
    bool nacti();

    /// Name of a button from 1 on; "" where the table has none.
    QString nazev(int bas) const;
    /// The button of exactly this name; 0 when unknown.
    int cislo(const QString& nazev) const { return cisla_.value(nazev, 0); }

    /// One Czech sentence on what is wrong with the table; "" when it is whole.
    const QString& chyba() const { return chyba_; }

private:
    QString nactiPolozky(const pugi::xml_document& dokument);
    bool jeKnoflik(int bas) const { return bas >= 1 && bas < static_cast<int>(nazvy_.size()); }
    bool pridej(int bas, const QString& nazev);

    QString soubor_;
    QString chyba_;
    std::vector<QString> nazvy_; ///< of button n at n; 0 is nobody's
    QHash<QString, int> cisla_;
};

} // namespace zvonika
