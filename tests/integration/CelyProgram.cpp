#include "tests/integration/CelyProgram.h"

#include "song/PopisSloupcu.h"
#include "spreadsheet/Address.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>

#include <stdexcept>

namespace zvonika::testing {

QByteArray obsahSouboru(const QString& soubor) {
    QFile cteny(soubor);
    EXPECT_TRUE(cteny.open(QIODevice::ReadOnly)) << soubor.toStdString();
    return cteny.readAll();
}

void ulozSoubor(const QString& soubor, const QByteArray& obsah) {
    QFile psany(soubor);
    ASSERT_TRUE(psany.open(QIODevice::WriteOnly | QIODevice::Truncate)) << soubor.toStdString();
    ASSERT_EQ(psany.write(obsah), obsah.size());
}

xls::Workbook sesit(const QString& soubor) {
    const QByteArray obsah = obsahSouboru(soubor);
    return xls::Workbook::open({obsah.begin(), obsah.end()});
}

QByteArray bajty(const xls::Workbook& kniha) {
    const xls::Bytes obsah = kniha.save();
    return {reinterpret_cast<const char*>(obsah.data()), static_cast<qsizetype>(obsah.size())};
}

QString textBunky(const xls::Workbook& kniha, const char* adresa) {
    const CellPosition bunka = parseAddress(QString::fromLatin1(adresa))->first;
    const xls::Value hodnota = kniha.value(0, {bunka.row - 1, bunka.column - 1});
    const auto* text = std::get_if<std::u16string>(&hodnota);
    return text ? QString::fromStdU16String(*text) : QString();
}

CelyProgram::CelyProgram()
    : drive(domov(), slozkaProgramu()), nastaveni(slozka.filePath(QStringLiteral("Tonavox12.ini"))),
      vlastniNastaveniTabulky(souborNastaveniTabulky()) {
    QDir(slozka.path()).mkpath(pracovni());
    QDir(slozka.path()).mkpath(slozkaProgramu());
    for (const char* tabulka : {"/tonavox.xml", "/konverze.xml"})
        QFile::copy(QLatin1String(ZVONIKA_RESOURCES) + QLatin1String(tabulka),
                    slozkaProgramu() + QLatin1String(tabulka));
}

void CelyProgram::spust() {
    program = std::make_unique<Program>(Prostredi{
        dialogs,
        nastaveni,
        drive,
        shell,
        {{{Tabulka::Vestavena, nabidkaVestavene, [this] { return novaTabulka(); }}}, Tabulka::Vestavena},
        hodiny,
        media,
        jednoduchyProhlizec(),
        nastrojZvonika(),
        zaznamy});
    program->Main();
    program->okno().resize(1000, 720);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&program->okno()));
    prejdiNaHlavniOkno();
}

std::unique_ptr<SpreadsheetApplication> CelyProgram::novaTabulka() {
    auto nova = std::make_unique<EmbeddedApplication>(
        drive, dialogs, vlastniNastaveniTabulky, zaznamy, [this](SheetCommands& prikazy) {
            auto okno = std::make_unique<SheetWindow>(prikazy, popisSloupcu());
            QObject::connect(okno.get(), &SheetWindow::f6Pressed, program.get(),
                             &Program::prejdiNaHlavniOkno);
            okno->takePageKey = [this](bool dolu) { return program->krokPedalu(dolu); };
            tabulka = okno.get();
            return okno;
        });
    excel = nova.get();
    return nova;
}

QWidget* CelyProgram::prvek(const QString& jmeno) const {
    QWidget* nalezeny = program->okno().prvek(jmeno);
    if (!nalezeny) throw std::runtime_error("no such control: " + jmeno.toStdString());
    return nalezeny;
}

QString CelyProgram::napis(const QString& jmeno) const {
    if (const auto* popisek = qobject_cast<QLabel*>(prvek(jmeno))) return popisek->text();
    return qobject_cast<QAbstractButton*>(prvek(jmeno))->text();
}

bool CelyProgram::povolen(const QString& jmeno) const {
    if (const auto* polozka = program->okno().findChild<QAction*>(jmeno)) return polozka->isEnabled();
    return prvek(jmeno)->isEnabled();
}

void CelyProgram::klikni(const QString& jmeno) const {
    const QWidget* cil = prvek(jmeno);
    ASSERT_TRUE(cil->isEnabled()) << jmeno.toStdString();
    QTest::mouseClick(cil->window()->windowHandle(), Qt::LeftButton, {},
                      mistoVOkne(cil, cil->rect().center()));
}

void CelyProgram::dvojklikni(const QString& jmeno) const {
    const QWidget* cil = prvek(jmeno);
    QTest::mouseDClick(cil->window()->windowHandle(), Qt::LeftButton, {},
                       mistoVOkne(cil, cil->rect().center()));
}

void CelyProgram::novaPisen(const QString& jmeno) {
    dialogs.expectInput("Nová skladba.", jmeno);
    klikni("cmdNovaSkladba");
    ASSERT_EQ(program->okno().windowTitle(), jmeno + ".xls");
}

void CelyProgram::otevri(const QString& soubor, const std::function<void()>& boxy) {
    dialogs.expectFile("Vyberte písničku, kterou chcete zkoušet !", soubor);
    if (boxy) boxy();
    klikni("cmdEdit");
}

void CelyProgram::zapisHmat(const QStringList& knofliky, bool tlak) const {
    for (const QString& knoflik : knofliky)
        klikni(knoflik);
    klikni(tlak ? "cmdTlak" : "cmdTah");
    klikni("cmdUvolKnofl");
}

void CelyProgram::ocekavejStavBezPisne() const {
    EXPECT_EQ(program->okno().windowTitle(), "Zvonika");
    EXPECT_FALSE(program->modely().pisen.otevrena());
    EXPECT_FALSE(program->modely().pas.viditelny);
    for (const char* jmeno : {"cmdEdit", "cmdNovaSkladba", "mnuOtevrit", "mnuNovaPisen"})
        EXPECT_TRUE(povolen(jmeno)) << jmeno;
    for (const char* jmeno : {"cmdTah", "cmdDalsi", "cmdPrvni", "cmdJakDal", "cmdEndEdit", "cmdZvuk(1)"})
        EXPECT_FALSE(povolen(jmeno)) << jmeno;
    EXPECT_TRUE(excel->session().documents().empty()) << "a workbook stays open in the sheet window";
}

void CelyProgram::prejdiNaTabulku() const {
    klavesa(Qt::Key_F6);
    ASSERT_TRUE(QTest::qWaitForWindowActive(tabulka));
}

void CelyProgram::prejdiNaHlavniOkno() const {
    program->prejdiNaHlavniOkno();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program->okno()));
}

void CelyProgram::klavesaTabulky(Qt::Key key, Qt::KeyboardModifiers m) const {
    QTest::keyClick(tabulka->windowHandle(), key, m);
    QCoreApplication::processEvents(); // an editor commits after it has seen the key
}

void CelyProgram::klikniNaBunku(const char* adresa) const {
    const CellPosition bunka = parseAddress(QString::fromLatin1(adresa))->first;
    const auto* bunky = tabulka->findChild<SheetTable*>();
    const QRect misto = bunky->visualRect(bunky->model()->index(bunka.row - 1, bunka.column - 1));
    QTest::mouseClick(tabulka->windowHandle(), Qt::LeftButton, {},
                      bunky->viewport()->mapTo(tabulka, misto.center()));
}

QStringList CelyProgram::soubory() const {
    return QDir(pracovni()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace zvonika::testing
