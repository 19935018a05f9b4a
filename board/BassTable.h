#pragma once

#include "board/TrebleLayout.h"

#include <QHash>
#include <QString>

#include <array>
#include <pugixml.hpp>

namespace zvonika {

/// The names of the bass buttons as they are written into songs, from the table "tonavox.xml" in the
/// program's folder. Nothing is ever raised: a table that cannot be read leaves all names unknown, a table
/// with faults keeps the entries that are good, and `chyba` tells what is wrong.
class BassTable {
public:
    /// `slozkaProgramu`: native folder of the table. The table is loaded at once.
    explicit BassTable(const QString& slozkaProgramu);

    /// Loads the table afresh; true when it is whole.
    bool nacti();

    /// Name of button 1..120; "" where the table has none.
    QString nazev(int bas) const;
    /// Button 1..120 of exactly this name; 0 when unknown.
    int cislo(const QString& nazev) const { return cisla_.value(nazev, 0); }

    /// One Czech sentence on what is wrong with the table; "" when it is whole.
    const QString& chyba() const { return chyba_; }

private:
    QString nactiPolozky(const pugi::xml_document& dokument);
    bool pridej(int bas, const QString& nazev);

    QString soubor_;
    QString chyba_;
    std::array<QString, pocetBasu + 1> nazvy_;
    QHash<QString, int> cisla_;
};

} // namespace zvonika
