#include "app/Konverzace.h"

namespace zvonika {

namespace {

OkoliPisne okoliPisne(Modely& modely, Dialogs& dialogs) {
    return {modely.pisen, dialogs, modely.panel, modely.stavy};
}

} // namespace

Konverzace::Konverzace(Modely& modely, const Prostredi& prostredi, std::function<void()> otevriVyberStupnice)
    : modely_(modely), dialogs_(prostredi.dialogs), notyZapis_(modely.zapisovaciOsnova, prostredi.dialogs),
      zobrazeniPrstokladu_(modely.diskant, prostredi.dialogs),
      uvolneni_(modely.diskant, modely.basy, modely.zapisovaciOsnova, modely.zobrazovaciOsnova,
                modely.prstoklad),
      zobrazeniHmatu_(
          modely.pisen,
          {modely.diskant, modely.basy, modely.tabulkaBasu, modely.zobrazovaciOsnova, modely.panel},
          [this](const QString& zaznam) { zobrazeniPrstokladu_.ZobrazPrstoklad(zaznam); }),
      pasPisne_(modely.pisen, modely.pas),
      navigace_(okoliPisne(modely, prostredi.dialogs), zobrazeniHmatu_, pasPisne_, modely.diskant,
                [this] { uvolneni_.uvolniVse(); }),
      kroky_(modely.pisen, prostredi.drive),
      vraceni_(okoliPisne(modely, prostredi.dialogs), kroky_, navigace_),
      zvuk_(okoliPisne(modely, prostredi.dialogs), prostredi.drive, prostredi.media),
      zivotPisne_(okoliPisne(modely, prostredi.dialogs), prostredi.drive,
                  {zobrazeniHmatu_, pasPisne_, navigace_, zvuk_, kroky_, modely.tonina,
                   [this] { uvolneni_.uvolniVse(); }}),
      neulozenePisne_(prostredi.zaznamy, prostredi.dialogs, zivotPisne_),
      klikDiskantu_(modely.diskant, notyZapis_, modely.tonina, prostredi.dialogs,
                    {std::move(otevriVyberStupnice),
                     [&modely](const QString& veta) { modely.panel.upozorneni = veta; }}),
      zadaniPrstu_(klikDiskantu_, modely.prstoklad, prostredi.dialogs),
      zapisNoty_(modely.zapisovaciOsnova, klikDiskantu_),
      zapisBasu_(modely.basy, modely.tabulkaBasu, prostredi.dialogs),
      poZapisu_(okoliPisne(modely, prostredi.dialogs), zobrazeniHmatu_, pasPisne_),
      zapisHmatu_(okoliZapisu(), modely.diskant),
      zapisHmatuZNot_(okoliZapisu(), modely.zapisovaciOsnova, notyZapis_, modely.diskant),
      prevzeti_(okoliPisne(modely, prostredi.dialogs),
                {modely.diskant, modely.basy, modely.zapisovaciOsnova, notyZapis_, modely.prstoklad},
                modely.tabulkaBasu, modely.tonina),
      radky_(okoliPisne(modely, prostredi.dialogs), kroky_, navigace_),
      intervaly_({modely.pisen, prostredi.dialogs, modely.panel, modely.diskant, modely.zobrazovaciOsnova,
                  modely.tonina, modely.krokyIntervalu, prostredi.drive.programFolder()}),
      volbaStupnice_(prostredi.dialogs, modely.tonina, modely.zapisovaciOsnova),
      volbyHmatniku_(modely.diskant, modely.tonina, prostredi.nastaveni, modely.stavy),
      ukonceniExcelu_(modely.pisen, prostredi.dialogs) {
    zivotPisne_.stavBezPisne();
}

OkoliZapisu Konverzace::okoliZapisu() {
    return {modely_.pisen, dialogs_, modely_.prstoklad, zapisBasu_, poZapisu_, kroky_, modely_.tonina};
}

} // namespace zvonika
