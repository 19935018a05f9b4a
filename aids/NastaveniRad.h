#pragma once

#include "aids/TlacitkaRad.h"

#include <array>
#include <optional>

namespace zvonika {

class Dialogs;
class SettingsStore;
class TrebleBoard;

/// The texts of `frmNastaveni`.
namespace textyNastaveni {
inline const QString titulek = QStringLiteral("Slouží k pozičnímu prstokladu");
inline const std::array<QString, 3> optTypPrstokladu{QStringLiteral("Prstoklad Borovec"),
                                                     QStringLiteral("Prstoklad Lipanský (doporučeno)"),
                                                     QStringLiteral("Prstoklad 3")};
inline const QString fraZabrany = QStringLiteral("Překrýt řady   5      4      3      2      1");
inline const QString cmdNic = QStringLiteral("Vyčistit");
inline const QString cmdNapoveda = QStringLiteral("Nápověda");
inline const QString cmdOk = QStringLiteral("Ok");
inline const QString cmdZrusit = QStringLiteral("Zrušit");
} // namespace textyNastaveni

/// What the row restrictions `frmNastaveni` do while they are up: fingering type, rows to cover, storing and
/// applying. One instance is one opening of the dialog, as it was drawn before anything is read.
class NastaveniRad {
public:
    NastaveniRad(SettingsStore& nastaveni, TrebleBoard& diskant, Dialogs& dialogs);

    /// Reads the settings. A cover that is no truth value leaves its row free and a fingering type that is no
    /// number leaves the choice open; both are silent. Any other type than 0..2 is reported.
    void Form_Load();

    /// Fingering type `index` is selected: the captions rotate until `cmdCDur` shows the type's key. Any
    /// other index than 0..2 is reported and selects nothing.
    void optTypPrstokladu(int index);
    /// Covers exactly the rows that belong to the button.
    void klikTlacitkaRad(TlacitkoRad tlacitko);
    void chkZabrany(int rada, bool zaskrtnuto); ///< box of row 1..5
    void cmdNic();
    void cmdNapoveda();
    /// Stores boxes and fingering type and covers the rows of the board. Without a selected type the stored
    /// one stays.
    void cmdOk();

    const TlacitkaRad& tlacitka() const { return tlacitka_; }
    bool zaskrtnuto(int rada) const { return zabrany_.at(static_cast<std::size_t>(rada)); }
    /// Selected fingering type 0..2.
    std::optional<int> typ() const { return typ_; }

private:
    void nactiZabranu(int rada);
    void nactiTyp();

    SettingsStore& nastaveni_;
    TrebleBoard& diskant_;
    Dialogs& dialogs_;
    TlacitkaRad tlacitka_;
    std::array<bool, 6> zabrany_{}; ///< by row number
    std::optional<int> typ_;
};

} // namespace zvonika
