#include "playing/song/Zvuk.h"

#include "playing/stepping/PrikazyPisne.h"

namespace zvonika {

namespace {

const QStringList& pripony() {
    static const QStringList pripony{QStringLiteral("mp3"), QStringLiteral("mid"), QStringLiteral("wav")};
    return pripony;
}

} // namespace

void Zvuk::NajdiZvuk() {
    povolZahajeniPisne(okoli_.prikazy, false);
    okoli_.prikazy.povol(QStringLiteral("Combo1"));
    okoli_.panel.lblLadeni = okoli_.pisen.excel().activeSheetName();
    okoli_.panel.Combo1 = okoli_.panel.lblLadeni;
    najdiSoubory();
}

void Zvuk::najdiSoubory() {
    // The working folder also for a song that was opened from elsewhere. The dot of ".xls" stays.
    const QString zaklad = pracovniAdresar + u'\\' + okoli_.pisen.aktualniPisen.chopped(3);
    for (qsizetype i = 0; i < pripony().size(); ++i)
        okoli_.prikazy.povol(QStringLiteral("cmdZvuk(%1)").arg(i),
                             drive_.fileExists(zaklad + pripony().at(i)));
    okoli_.panel.oznamZmenu();
}

void Zvuk::cmdZvuk(int index) const {
    throw RuntimeError(
        error::subscriptOutOfRange,
        QStringLiteral("Zvukový soubor s příponou %1 nelze přehrát.").arg(pripony().value(index)));
}

bool Zvuk::PrehrajZvuk(const QString& jmeno) {
    media_.sendString(QStringLiteral("open ") + jmeno + QStringLiteral(" type sequencer"));
    return media_.sendString(QStringLiteral("play ") + jmeno) == 0;
}

void Zvuk::ZastavZvuk(const QString& jmeno) {
    media_.sendString(QStringLiteral("stop ") + jmeno);
    media_.sendString(QStringLiteral("close ") + jmeno);
}

} // namespace zvonika
