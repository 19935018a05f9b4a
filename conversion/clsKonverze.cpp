#include "conversion/clsKonverze.h"

#include "conversion/NahradText.h"
#include "platform/ShownText.h"

namespace zvonika {

namespace {

constexpr int prvniPolozka = 1;
constexpr int posledniPolozka = 56;
constexpr int delkaPripony = 4; // ".xls"
constexpr int radkuSlabik = 900;

const VolbyNahrady jednou{Qt::CaseInsensitive, 1, 1};

} // namespace

clsKonverze::clsKonverze(Pisen& pisen, Dialogs& dialogs, Drive& drive, std::function<void()> zpracujZpravy)
    : pisen_(pisen), dialogs_(dialogs), drive_(drive), zpracujZpravy_(std::move(zpracujZpravy)) {}

QString clsKonverze::bezMezery(const QString& stupnice) {
    int provedeno = 0;
    return NahradText(stupnice, QStringLiteral(" "), {}, jednou, zpracujZpravy_, provedeno);
}

std::optional<QString> clsKonverze::Konvertuj(const QString& zdrojova, const QString& cilova,
                                              const QString& ton) {
    try {
        int provedeno = 0;
        // Only the source key has its "Dur" made small.
        const QString zdroj = NahradText(bezMezery(zdrojova), QStringLiteral("Dur"), QStringLiteral("dur"),
                                         jednou, zpracujZpravy_, provedeno);
        const QString cil = bezMezery(cilova);
        pisen_.excel().activateWindow(pisen_.aktualniPisen);
        return najdiTon(zdroj, cil, ton);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

std::optional<QString> clsKonverze::najdiTon(const QString& zdroj, const QString& cil, const QString& ton) {
    tabulka_.nacti(drive_.programFolder());
    for (int i = prvniPolozka; i <= posledniPolozka; ++i) {
        const auto jmeno = tabulka_.ton(i, zdroj);
        if (!jmeno) return std::nullopt; // an entry without the key ends the search
        if (*jmeno == ton) return tabulka_.ton(i, cil);
    }
    return std::nullopt;
}

QString clsKonverze::ZjistiZapsaneLadeni(const QString& sesit) {
    pisen_.excel().activateWindow(sesit);
    return cellText(pisen_.excel().value(adresa(sloupce::tonina, 1)));
}

QString clsKonverze::ZmenaLadeni(const QString& soucasna, const QString& nova, const QString& radek) {
    const Answer odpoved = dialogs_.message(
        {QStringLiteral("Přechod do jiné stupnice"),
         QStringLiteral("Na řádku ") + radek + QStringLiteral(" se mění původní stupnice z ") +
             shownName(soucasna) + QStringLiteral(" do ") + shownName(nova) +
             QStringLiteral(".\nChcete-li tento úsek konvertovat do jiné stupnice, stiskněte Ano."),
         Icon::Question, Buttons::YesNoCancel, Answer::No});
    if (odpoved == Answer::Yes) return odpovediZmeny::zmenit;
    return odpoved == Answer::No ? odpovediZmeny::ne : odpovediZmeny::storno;
}

bool clsKonverze::VytvorCilovySoubor(const QString& cilova, const QString& zdrojovySoubor) {
    if (!ExistujeSlozka(pracovniAdresar)) zalozSlozku();
    const QString nazev =
        zdrojovySoubor.chopped(std::min<qsizetype>(delkaPripony, zdrojovySoubor.size())) + u' ' + cilova;
    const QString plneJmeno = pracovniAdresar + u'\\' + nazev + QStringLiteral(".xls");
    std::vector<std::unique_ptr<SetAside>> puvodni; // back in their place with the end, unless given up
    if (SouborZustava(plneJmeno, puvodni)) {
        dialogs_.message({QStringLiteral("Založení nové skladby přerušeno."),
                          QStringLiteral("Začněte znovu a zadejte jiný název písně."), Icon::Information});
        return false;
    }
    pisen_.excel().addWorkbook();
    try {
        zalozSesit(plneJmeno);
        for (const auto& soubor : puvodni)
            soubor->giveUp();
        prenesSlabiky();
        return true;
    } catch (const std::exception&) {
        return false; // not reported from here on
    }
}

void clsKonverze::zalozSesit(const QString& plneJmeno) {
    pisen_.excel().saveActiveWorkbookAs({plneJmeno});
    pisen_.excel().renameActiveSheet(QStringLiteral("Tonavox12"));
}

void clsKonverze::prenesSlabiky() {
    SpreadsheetApplication& excel = pisen_.excel();
    const QString novy = excel.activeWorkbookName();
    const QString slabiky = adresaSloupce(sloupce::slabika, radkuSlabik);
    excel.activateWindow(pisen_.aktualniPisen);
    excel.selectRange(slabiky);
    excel.copyRange(slabiky);
    excel.activateWindow(novy);
    excel.selectRange(adresa(sloupce::slabika, 1));
    excel.paste();
    excel.selectRange(adresa(sloupce::tony.prvni, 1));
    excel.saveActiveWorkbook();
}

void clsKonverze::zalozSlozku() {
    dialogs_.message({QStringLiteral("Pracovní adresář neexistuje."),
                      QStringLiteral("Cesta do C:\\Dokumenty\\Heligonka  nebyla nalezena.\n"
                                     "Aby mohl program správně pracovat, bude nyní vytvořena tato složka.\n"
                                     "Do ní se budou ukládat Vaše skladby."),
                      Icon::Exclamation});
    const QString dokumenty = QStringLiteral("C:\\Dokumenty");
    if (!ExistujeSlozka(dokumenty)) drive_.createFolder(dokumenty);
    // In one call: where the folder between these two is missing, saving will find out.
    drive_.createFolder(pracovniAdresar);
}

bool clsKonverze::ExistujeSlozka(const QString& cesta) const {
    return drive_.folderExists(cesta);
}

bool clsKonverze::SouborZustava(const QString& cesta, std::vector<std::unique_ptr<SetAside>>& puvodni) {
    while (drive_.fileExists(cesta)) {
        const Answer odpoved = dialogs_.message(
            {QStringLiteral("Tato skladba již existuje!"),
             QStringLiteral("Přejete si vymazat z disku původní písničku a nahradit ji novou ?"),
             Icon::Exclamation, Buttons::YesNo});
        if (odpoved != Answer::Yes) return true;
        try {
            puvodni.push_back(drive_.setAside(cesta));
        } catch (const RuntimeError&) {
            return true;
        }
    }
    return false;
}

} // namespace zvonika
