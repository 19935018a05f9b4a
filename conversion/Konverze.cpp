#include "conversion/Konverze.h"

#include "conversion/KopiePisne.h"
#include "conversion/ListHeligonky.h"
#include "platform/ShownText.h"
#include "spreadsheet/Address.h"
#include "theory/Toniny.h"

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

constexpr int radkuPodPisni = 10; ///< below the song that lose their fingering too

std::optional<QString> zvolenaStupnice(const StavKonverze& stav) {
    if (!stav.optStupnice) return std::nullopt;
    return toniny.at(static_cast<std::size_t>(*stav.optStupnice)).nazev.toString();
}

} // namespace

/// A click being served. One that comes in meanwhile, with the messages processed during a run, is no second
/// run.
class Konverze::Obsluha {
public:
    explicit Obsluha(StavKonverze& stav) : stav_(stav) {
        stav_.bezi = true;
        stav_.oznamZmenu();
    }
    ~Obsluha() {
        stav_.bezi = false;
        stav_.oznamZmenu();
    }
    Obsluha(const Obsluha&) = delete;
    Obsluha& operator=(const Obsluha&) = delete;

private:
    StavKonverze& stav_;
};

Konverze::Konverze(Pisen& pisen, Dialogs& dialogs, Drive& drive, StavKonverze& stav,
                   std::function<void()> zpracujZpravy)
    : pisen_(pisen), dialogs_(dialogs), drive_(drive), stav_(stav),
      konverze_(pisen, dialogs, drive, std::move(zpracujZpravy)), zdroj_(pisen, dialogs, konverze_, stav) {}

void Konverze::cmdVyberPisen() {
    if (stav_.bezi) return;
    const Obsluha obsluha(stav_);
    if (zdroj_.vyber()) stav_.selhala = false;
}

void Konverze::cmdGo() {
    if (stav_.bezi) return;
    if (stav_.selhala) return;
    const Obsluha obsluha(stav_);
    const QString cilova = std::exchange(stav_.lblLadeni, {});
    cilova.isEmpty() ? zacni() : pokracuj(cilova);
}

void Konverze::cmdPokracovat() {
    if (stav_.bezi) return;
    stav_.lblLadeni = zvolenaStupnice(stav_).value_or(stav_.lblLadeni);
    cmdGo();
}

void Konverze::cmdKonec() {
    zastavit_ = true;
    if (!stav_.bezi) zavri();
}

void Konverze::zacni() {
    if (!pisen_.AktivujPisen()) {
        odmitni(QStringLiteral("Neočekávaná chyba."),
                QStringLiteral("Píseň ze které se má konvertovat, není otevřena."));
        return;
    }
    const auto cilova = zvolenaStupnice(stav_);
    if (!lzeZacit(cilova) || !pripravKopii(*cilova)) return;
    proved(*cilova, &BehKonverze::odZacatku);
}

bool Konverze::lzeZacit(const std::optional<QString>& cilova) {
    const QString neuplneUdaje = QStringLiteral("Neúplné údaje.");
    const QString& soucasna = stav_.lblStupnice;
    if (!cilova)
        return odmitni(neuplneUdaje,
                       QStringLiteral("Neurčili jste do kterého ladění si přejete konverzi provést. "
                                      "Zaškrtněte požadovanou volbu a zkuste to znovu."),
                       Icon::Exclamation);
    if (soucasna.isEmpty())
        return odmitni(neuplneUdaje, QStringLiteral("Píseň neobsahuje záznam ve kterém ladění je zapsána. "
                                                    "Konverze nebude provedena !"));
    if (soucasna == *cilova)
        return odmitni(QStringLiteral("Chyba při výběru ladění."),
                       QStringLiteral("Ve Vámi zvoleném ladění byla píseň již zapsána. Konverze z ") +
                           shownName(soucasna) + QStringLiteral(" do ") + *cilova +
                           QStringLiteral(" nebude provedena !"));
    return true;
}

bool Konverze::pripravKopii(const QString& cilova) {
    KopiePisne kopie(pisen_, dialogs_, drive_);
    if (!kopie.uloz(cilova)) {
        odmitni(QStringLiteral("Storno převodu."), QStringLiteral("Zpracování zrušeno uživatelem."),
                Icon::Information);
        zavri();
        return false;
    }
    pripravList(kopie, cilova);
    kopie_ = pisen_.aktualniPisen;
    if (!isEmpty(pisen_.excel().activeCellValue())) return true;
    odmitni(
        QStringLiteral("Přerušeno na začátku."),
        QStringLiteral("Program nemá k dispozici očekávaná data. Konverze nebude provedena. Smažte soubor ") +
            shownName(kopie_) +
            QStringLiteral("\nEventuelně může být tento soubor použit pro ruční zápis v požadovaném "
                           "ladění."));
    zavri();
    return false;
}

/// As long as no row was converted, a failure leaves nothing behind.
void Konverze::pripravList(KopiePisne& kopie, const QString& cilova) {
    SpreadsheetApplication& excel = pisen_.excel();
    ztraty_ = {};
    odmitnuteJmeno_.clear();
    try {
        puvodniList_ = excel.activeSheetName();
        rozdelanyList_ = cilova + QStringLiteral(" Nedokončeno");
        excel.renameActiveSheet(rozdelanyList_);
        excel.selectRange(adresa(sloupce::tony.prvni, 1));
        kopie.potvrd();
    } catch (...) {
        stav_.selhala = !kopie.vezmiZpet();
        if (stav_.selhala) kopie_ = pisen_.aktualniPisen;
        throw;
    }
}

/// The copy is looked for by its name: another workbook may have come to the front while the run waited.
void Konverze::pokracuj(const QString& cilova) {
    pisen_.excel().activateWindow(pisen_.aktualniPisen);
    stav_.ceka = false;
    proved(cilova, &BehKonverze::odAktivniBunky);
}

/// Until the run has said how it ended, the copy is no song to begin with.
void Konverze::proved(const QString& cilova, KonecBehu (BehKonverze::*odkud)()) {
    stav_.selhala = true;
    BehKonverze rozbehnuty = beh(cilova);
    const KonecBehu konec = (rozbehnuty.*odkud)();
    pisen_.excel().finishWriting();
    poBehu(konec);
    stav_.selhala = false;
}

BehKonverze Konverze::beh(const QString& cilova) {
    cilova_ = cilova;
    zastavit_ = false;
    return BehKonverze({pisen_, dialogs_, konverze_, stav_, ztraty_,
                        [this](int radek) {
                            stav_.radek = radek;
                            stav_.oznamZmenu();
                            return !zastavit_;
                        }},
                       cilova);
}

void Konverze::poBehu(KonecBehu konec) {
    switch (konec) {
    case KonecBehu::Dokoncen:
        dokonci();
        [[fallthrough]];
    case KonecBehu::Storno:
    case KonecBehu::Zastaven:
        zavri();
        break;
    case KonecBehu::ZmenaStupnice:
        cekejNaStupnici();
        break;
    case KonecBehu::BezLadeni:
        break;
    }
}

void Konverze::dokonci() {
    SpreadsheetApplication& excel = pisen_.excel();
    najdiNeprevedene();
    const int posledni = std::min(excel.activeRow() + radkuPodPisni, lastRow);
    excel.clearContents(adresaSloupce(sloupce::prstoklad, posledni));
    excel.selectRange(adresa(sloupce::slabika, 1)); // the run has scrolled the syllables out of sight
    excel.selectRange(adresa(sloupce::tony.prvni, 1));
    prejmenujList(stav_.Check1 ? nazevListuHeligonky(cilova_) : puvodniList_);
    dokoncena_ = true;
    dialogs_.message({QStringLiteral("Hotovo"),
                      QStringLiteral("Skladba byla na aktivním listu překonvertována podle nastavených "
                                     "požadavků a uložena do souboru \n") +
                          shownName(kopie_) + u'.',
                      Icon::Information});
}

/// What stands below the end of the run, and in the row of it where no cell of it was converted.
void Konverze::najdiNeprevedene() {
    const auto konec = parseAddress(pisen_.excel().activeAddress());
    if (!konec) return;
    const int od = konec->first.row + (konec->first.column > sloupce::tony.prvni ? 1 : 0);
    ztraty_.nastavKonec(adresa(konec->first.column, konec->first.row), SongReader(pisen_).radkySHmaty(od));
}

/// Another sheet of the song may have that name; the song is converted nonetheless.
void Konverze::prejmenujList(const QString& jmeno) {
    try {
        pisen_.excel().renameActiveSheet(jmeno);
    } catch (const AutomationError& odmitnuti) {
        if (odmitnuti.number() != error::applicationDefined) throw;
        odmitnuteJmeno_ = jmeno;
    }
}

void Konverze::cekejNaStupnici() {
    stav_.titulek = QStringLiteral("Změňte stupnici a stikněte pokračovat.");
    stav_.pokracovatViditelne = true;
    stav_.ceka = true;
}

void Konverze::zavri() {
    stav_.zavreno = true;
    stav_.oznamZmenu();
}

bool Konverze::odmitni(const QString& nadpis, const QString& text, Icon ikona) {
    dialogs_.message({nadpis, text, ikona});
    return false;
}

QString Konverze::veta() const {
    if (kopie_.isEmpty()) return {};
    QStringList vety;
    if (!dokoncena_)
        vety << QStringLiteral("Konverze není dokončena, list kopie se jmenuje „%1“.").arg(rozdelanyList_);
    else if (!odmitnuteJmeno_.isEmpty())
        vety << QStringLiteral("Převedený list zůstal „%1“, na „%2“ přejmenovat nešel.")
                    .arg(rozdelanyList_, odmitnuteJmeno_);
    if (!ztraty_.veta().isEmpty()) vety << ztraty_.veta();
    if (!zdroj_.jeZHlavnihoOkna()) vety << QStringLiteral("Kopie je v souboru „%1“.").arg(kopie_);
    return vety.join(u' ');
}

} // namespace zvonika
