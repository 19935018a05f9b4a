#include "theory/clsIntervaly.h"

#include "theory/NazvyTonu.h"

#include <algorithm>

namespace zvonika {

namespace {

constexpr int prvniVychozi = 1; // the heading is never a starting point
constexpr int posledniVychozi = 57;
constexpr int nenalezen = 0;

/// The name of the table's element for the key: "G dur" is Gdur.
QString prvekStupnice(const Key& stupnice) {
    QString prvek = stupnice.text();
    return prvek.remove(u' ').replace(QStringLiteral("Dur"), QStringLiteral("dur"));
}

} // namespace

clsIntervaly::clsIntervaly(const QString& slozkaProgramu, Dialogs& dialogs)
    : tabulka_(slozkaProgramu), dialogs_(dialogs) {}

void clsIntervaly::UrciInterval(const ToneName& ton, const Key& stupnice, std::int16_t kroky,
                                bool bezKontroly, ToneName& vysledek) const {
    vysledek = {};
    const QString prvek = prvekStupnice(stupnice);
    const auto odkud = pozice(ton, prvek);
    if (!odkud) ohlasMimoTabulku();
    if (!odkud || *odkud == nenalezen) return;
    const int kam = *odkud + kroky;
    const auto nota = stupen(kam, prvek);
    if (!nota)
        ohlasMimoTabulku();
    else if (kam < prvniVychozi)
        ohlasMimoRozsah(*nota, stupnice);
    else if (!bezKontroly && cisloTonu(*nota) == CisloTonu::neznamy())
        ohlasNeznamou(*nota);
    else
        vysledek = *nota;
}

bool clsIntervaly::zna(const ToneName& ton, const Key& stupnice) const {
    return pozice(ton, prvekStupnice(stupnice)).value_or(nenalezen) != nenalezen;
}

std::optional<int> clsIntervaly::pozice(const ToneName& ton, const QString& prvek) const {
    const int posledni = std::min(posledniVychozi, tabulka_.pocetStupnu() - 1);
    for (int i = prvniVychozi; i <= posledni; ++i) {
        const auto nazev = stupen(i, prvek);
        if (!nazev) return std::nullopt;
        if (*nazev == ton) return i;
    }
    // The steps of a whole table end where they are marked to end.
    const bool vsechny = posledni == posledniVychozi || tabulka_.pocetStupnu() < tabulka_.pocet();
    return vsechny ? std::optional(nenalezen) : std::nullopt;
}

std::optional<ToneName> clsIntervaly::stupen(int pozice, const QString& prvek) const {
    // What lies behind the last step belongs to no scale.
    if (pozice >= tabulka_.pocetStupnu()) return std::nullopt;
    const auto nazev = tabulka_.ton(pozice, prvek);
    return nazev ? std::optional(ToneName(*nazev)) : std::nullopt;
}

void clsIntervaly::ohlasMimoRozsah(const ToneName& nota, const Key& stupnice) const {
    dialogs_.message({QStringLiteral("Interval mimo rozsah !"),
                      QStringLiteral("Ve stupnici ") + stupnice.text() +
                          QStringLiteral(" je výsledným intervalem dle Vašeho požadavku nota ") +
                          nota.text() +
                          QStringLiteral(" avšak tento tón je již mimo rozsah tohoto akordeonu.\n"
                                         "Interval nelze zobrazit!"),
                      Icon::Exclamation});
}

void clsIntervaly::ohlasNeznamou(const ToneName& nota) const {
    dialogs_.message({QStringLiteral("Chyba při vyhledávání tónu."),
                      QStringLiteral("Nota ") + nota.text() +
                          QStringLiteral(" v nastaveném ladění neexistuje.\n\n"
                                         "V tuto chvíli tón nemůže být zobrazen !"),
                      Icon::Exclamation});
}

void clsIntervaly::ohlasMimoTabulku() const {
    dialogs_.message({{},
                      QStringLiteral("Byl zvolen interval mimo rozsah tohoto akordeonu.\n"
                                     "Vyberte kratší interval !"),
                      Icon::Exclamation});
}

} // namespace zvonika
