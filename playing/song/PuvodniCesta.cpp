#include "playing/song/PuvodniCesta.h"

#include "platform/Drive.h"

namespace zvonika {

namespace {

const QString sekce = QStringLiteral("PuvodniCesta");

} // namespace

PuvodniCesta::PuvodniCesta(SettingsStore& nastaveni, int tabulka)
    : nastaveni_(nastaveni), klic_(QString::number(tabulka)) {}

QString PuvodniCesta::zjisti(const QString& nalezena) const {
    if (nalezena == pracovniAdresar) return nastaveni_.getOr(sekce, klic_, QStringLiteral("C:\\Dokumenty"));
    zapamatuj(nalezena);
    return nalezena;
}

void PuvodniCesta::zapamatuj(const QString& cesta) const {
    nastaveni_.save(sekce, klic_, cesta);
}

} // namespace zvonika
