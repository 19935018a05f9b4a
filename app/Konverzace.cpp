#include "app/Konverzace.h"

namespace zvonika {

namespace {

OkoliPisne okoliPisne(Modely& modely, Dialogs& dialogs) {
    return {modely.pisen, dialogs, modely.panel, modely.stavy};
}

} // namespace

Konverzace::Konverzace(Modely& modely, const Prostredi& prostredi, std::function<void()> otevriVyberStupnice)
    : modely_(modely), dialogs_(prostredi.dialogs), notyZapis(modely.zapisovaciOsnova, prostredi.dialogs),
      prstoklad(prostredi.dialogs), zobrazeniPrstokladu(modely.diskant, prostredi.dialogs),
      uvolneni(modely.diskant, modely.basy, modely.zapisovaciOsnova, modely.zobrazovaciOsnova),
      zobrazeniHmatu(
          modely.pisen,
          {modely.diskant, modely.basy, modely.tabulkaBasu, modely.zobrazovaciOsnova, modely.panel},
          [this](const QString& zaznam) { zobrazeniPrstokladu.ZobrazPrstoklad(zaznam); }),
      pasPisne(modely.pisen, modely.pas),
      navigace(okoliPisne(modely, prostredi.dialogs), zobrazeniHmatu, pasPisne, modely.diskant,
               [this] { uvolneni.uvolniVse(); }),
      zvuk(okoliPisne(modely, prostredi.dialogs), prostredi.drive, prostredi.media),
      zivotPisne(okoliPisne(modely, prostredi.dialogs), prostredi.drive,
                 {zobrazeniHmatu, pasPisne, navigace, zvuk, [this] { uvolneni.uvolniVse(); }}),
      klikDiskantu(modely.diskant, notyZapis, modely.tonina, prostredi.dialogs,
                   {std::move(otevriVyberStupnice),
                    [&modely](const QString& veta) { modely.panel.upozorneni = veta; }}),
      zapisNoty(modely.zapisovaciOsnova, klikDiskantu),
      zapisBasu(modely.basy, modely.tabulkaBasu, prostredi.dialogs),
      poZapisu(okoliPisne(modely, prostredi.dialogs), zobrazeniHmatu, pasPisne),
      zapisHmatu(okoliZapisu(), modely.diskant),
      zapisHmatuZNot(okoliZapisu(), modely.zapisovaciOsnova, notyZapis),
      intervaly({modely.pisen, prostredi.dialogs, modely.panel, modely.diskant, modely.zobrazovaciOsnova,
                 modely.tonina, modely.krokyIntervalu, prostredi.drive.programFolder()}),
      volbaStupnice(prostredi.dialogs, modely.tonina, modely.zapisovaciOsnova),
      volbyHmatniku(modely.diskant, modely.tonina, prostredi.nastaveni, modely.stavy),
      ukonceniExcelu(modely.pisen, prostredi.dialogs) {}

OkoliZapisu Konverzace::okoliZapisu() {
    return {modely_.pisen, dialogs_, prstoklad, zapisBasu, poZapisu, modely_.tonina};
}

} // namespace zvonika
