#pragma once

#include "platform/Dialogs.h"
#include "platform/SettingsStore.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace zvonika {

/// What the start-up sequence does to the main window and the board; each part is handed in by the
/// composition.
struct KrokySpusteni {
    std::function<void()> nastavVzdyNahore;    ///< keep the window above all others
    std::function<void()> spustExcel;          ///< start the spreadsheet application
    std::function<void(bool)> obratCislovani;  ///< reversed layout of the number labels
    std::function<void(bool)> zapniNazvy;      ///< mnu2Rady and the names on the buttons
    std::function<void(bool)> zapniCislovani;  ///< mnuCislovat and the 32 number labels
    std::function<void()> rozlozBasy;          ///< bass buttons laid out, released, state text "0"
    std::function<void()> uvolniDiskant;       ///< treble board released
    std::function<void(int, bool)> zakryjRadu; ///< row cover 1..5
};

/// The start-up of the main window (`Form_Load`): one sequence under one error trap.
class Spusteni {
public:
    Spusteni(const SettingsStore& nastaveni, Dialogs& dialogs, KrokySpusteni kroky);

    /// Error 13 skips the failing statement; any other error is reported and the rest is skipped.
    /// True when the sequence came to its end.
    bool Form_Load();

private:
    using Prikaz = std::function<void()>;
    std::vector<Prikaz> posloupnost();
    void ctiBajt(const QString& sekce);
    void ohlas(int cislo, const QString& pricina);

    const SettingsStore& nastaveni_;
    Dialogs& dialogs_;
    KrokySpusteni kroky_;
    /// Shared by the three readings: a reading that fails leaves it as it was, so a missing entry takes over
    /// the value of the one before it.
    std::uint8_t bajt_ = 0;
};

} // namespace zvonika
