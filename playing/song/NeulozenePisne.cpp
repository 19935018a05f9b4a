#include "playing/song/NeulozenePisne.h"

#include "playing/song/ZivotPisne.h"
#include "spreadsheet/journal/RecoverySentences.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace zvonika {

namespace {

const QString titulek = QStringLiteral("Neuložené písničky");
constexpr qsizetype nejvicJmen = 8;

QString slozka(const PendingSong& pisen) {
    return QDir::toNativeSeparators(QFileInfo(pisen.path).absolutePath());
}

QString radek(const PendingSong& pisen) {
    const QString text = QStringLiteral("„%1“: %2, poslední %3")
                             .arg(pisen.name, changesInWords(pisen.changes), momentInWords(pisen.lastChange));
    return pisen.there ? text
                       : text + QStringLiteral(" (ve složce „%1“ už není; přejmenovanou nebo přesunutou "
                                               "program pozná, až ji otevřete)")
                                    .arg(slozka(pisen));
}

QString vycet(const std::vector<PendingSong>& pisne) {
    QStringList radky{QStringLiteral("Z minula zůstaly neuložené změny v písničkách:")};
    if (pisne.size() == 1) radky = {QStringLiteral("Z minula zůstaly neuložené změny v písničce:")};
    for (const PendingSong& pisen : pisne)
        radky << radek(pisen);
    const auto navic = radky.size() - 1 - nejvicJmen;
    if (navic > 0) radky = radky.first(nejvicJmen + 1) << QStringLiteral("a v dalších: %1").arg(navic);
    return radky.join(u'\n');
}

QString otazka(const QString& jmeno, bool jedina) {
    return QStringLiteral("\n\nChcete teď otevřít „%1“? Program pak nabídne, že změny vrátí.").arg(jmeno) +
           (jedina ? QStringLiteral(" Jinak je nabídne, až písničku otevřete.")
                   : QStringLiteral(" U ostatních to nabídne, až je otevřete."));
}

} // namespace

bool NeulozenePisne::nejake() const {
    JournalFolder::Unusable nepouzitelne;
    return !zaznamy_.songs(&nepouzitelne).empty() || !nepouzitelne.closed.empty();
}

void NeulozenePisne::nabidni() {
    JournalFolder::Unusable nepouzitelne;
    const auto pisne = zaznamy_.songs(&nepouzitelne);
    for (const auto& [misto, chyba] : nepouzitelne.closed)
        dialogs_.message({titulek, closedJournal(QDir::toNativeSeparators(misto), chyba), Icon::Exclamation});
    if (pisne.empty()) return;
    const auto posledni = std::ranges::find(pisne, true, &PendingSong::there);
    if (posledni == pisne.end()) {
        dialogs_.message({titulek, vycet(pisne), Icon::Exclamation});
        return;
    }
    const QString text = vycet(pisne) + otazka(posledni->name, pisne.size() == 1);
    if (dialogs_.message({titulek, text, Icon::Question, Buttons::YesNo}) == Answer::Yes)
        zivotPisne_.otevri(posledni->path);
}

} // namespace zvonika
