#pragma once

#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "tests/support/NahodnyHrac.h"

namespace zvonika::testing {

/// The player's hand in the window of the built-in spreadsheet.
inline RukaVTabulce rukaVestavene(EmbeddedApplication& tabulka) {
    const auto vyber = [&tabulka](const QString& bunka) {
        const CellRange misto = parseAddress(bunka).value();
        tabulka.commands().select(misto, misto.first);
        return misto.first;
    };
    return {[&tabulka, vyber](const QString& bunka, const QString& text) {
                tabulka.commands().type(vyber(bunka), text);
            },
            [&tabulka, vyber](const QString& bunka) {
                vyber(bunka);
                tabulka.commands().insertRow();
            },
            [&tabulka, vyber](const QString& bunka) {
                vyber(bunka);
                tabulka.commands().deleteRow();
            }};
}

} // namespace zvonika::testing
