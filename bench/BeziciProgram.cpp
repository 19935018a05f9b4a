#include "bench/BeziciProgram.h"

#include "app/Program.h"
#include "platform/IniSettingsStore.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <chrono>
#include <ctime>
#include <stdexcept>

namespace zvonika::bench {

namespace {

constexpr int trpelivost = 10000; // ms until the program counts as stuck

using Hodiny = std::chrono::steady_clock;

double ms(Hodiny::duration doba) {
    return std::chrono::duration<double, std::milli>(doba).count();
}

double casProcesoru() {
    timespec cas{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &cas);
    return double(cas.tv_sec) * 1e3 + double(cas.tv_nsec) / 1e6;
}

/// A row as a player leaves it: three tones with fingering, one bass, a syllable.
QVector<CellValue> radekPisne(int radek, const BassTable& basy) {
    static const QStringList akordy[] = {
        {"c1,", "e1,", "g1,"}, {"d1,", "f1,", "a1,"}, {"e1,", "g1,"}, {"f1,", "a1,"}, {"g1,"}};
    QVector<CellValue> bunky(23);
    bunky[0] = QStringLiteral("sla-");
    const QStringList& akord = akordy[radek % 5];
    for (qsizetype i = 0; i < akord.size(); ++i)
        bunky[1 + i] = akord[i];
    bunky[8] = radek / 6 % 2 ? QStringLiteral("Tlak") : QStringLiteral("Tah");
    bunky[12] = basy.nazev(29 + radek % 3);
    bunky[21] = QStringLiteral("l%1;%2\\").arg(9 + radek % 8).arg(1 + radek % 5);
    bunky[22] = QStringLiteral("C dur");
    return bunky;
}

QString domov(const QTemporaryDir& slozka, Tabulka tabulka) {
    QDir().mkpath(slozka.filePath("domov/Dokumenty/Heligonka/Zvonika"));
    IniSettingsStore nastaveni(slozka.filePath("nastaveni/Tonavox12.ini"));
    VolbaTabulky(nastaveni).zvol(tabulka);
    return slozka.filePath("domov");
}

} // namespace

Tabulka pozadovanaTabulka() {
    const bool calc = QCoreApplication::arguments().contains(QStringLiteral("--tabulka=libreoffice"));
    return calc ? Tabulka::LibreOffice : Tabulka::Vestavena;
}

BeziciProgram::BeziciProgram(QApplication& aplikace, testing::RucniHodiny* hodiny, Tabulka tabulka)
    : hodiny_(hodiny), sestava_(aplikace, {domov(slozka_, tabulka), slozka_.filePath("nastaveni"), hodiny}) {
    program().Main();
    cekejNaOkna();
    program().modely().tonina.nastavStupnici(Key(QStringLiteral("C dur")));
    aplikace.installEventFilter(this);
    domaluj();
}

BeziciProgram::~BeziciProgram() {
    program().okno().close();
}

void BeziciProgram::cekejNaOkna() {
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (okno->isVisible() && !QTest::qWaitForWindowExposed(okno, trpelivost))
            throw std::runtime_error("a window did not appear");
}

bool BeziciProgram::eventFilter(QObject* cil, QEvent* udalost) {
    if (udalost->type() != QEvent::Paint || !cil->isWidgetType()) return false;
    const QWidget* okno = static_cast<QWidget*>(cil)->window();
    ++(okno == &program().okno() ? malbyHlavnihoOkna_ : malbyTabulky_);
    return false;
}

void BeziciProgram::domaluj() {
    // Painting one window may ask for more of the other: until a whole round has painted nothing.
    for (int predtim = -1; predtim != malbyHlavnihoOkna_ + malbyTabulky_;) {
        predtim = malbyHlavnihoOkna_ + malbyTabulky_;
        QCoreApplication::processEvents();
    }
}

CasAkce BeziciProgram::zmer(const std::function<void()>& akce) {
    malbyHlavnihoOkna_ = malbyTabulky_ = 0;
    auto zacatek = Hodiny::now();
    double procesor = casProcesoru();
    predPotvrzenim_ = [&] { // what the player does in a box is not the program's time
        zacatek = Hodiny::now();
        procesor = casProcesoru();
    };
    akce();
    const auto hotovo = Hodiny::now();
    domaluj();
    const auto namalovano = Hodiny::now();
    QGuiApplication::sync();
    const auto konec = Hodiny::now();
    predPotvrzenim_ = nullptr;
    return {ms(konec - zacatek),    ms(hotovo - zacatek),      ms(namalovano - hotovo),
            ms(konec - namalovano), casProcesoru() - procesor, malbyHlavnihoOkna_,
            malbyTabulky_};
}

CasAkce BeziciProgram::klikni(const QString& jmeno) {
    QWidget* cil = program().okno().prvek(jmeno);
    if (!cil || !cil->isEnabled() || !cil->isVisible())
        throw std::runtime_error("cannot be clicked: " + jmeno.toStdString());
    return zmer([cil] { QTest::mouseClick(cil, Qt::LeftButton); });
}

CasAkce BeziciProgram::proved(const QString& prikaz) {
    return zmer([&] { program().proved(prikaz); });
}

void BeziciProgram::nastavTempo(int pozice) {
    auto* posuvnik = qobject_cast<QSlider*>(program().okno().prvek(QStringLiteral("Slider1")));
    posuvnik->setValue(pozice);
    QToolTip::hideText();
    domaluj();
}

CasAkce BeziciProgram::tik() {
    if (!hodiny_ || !hodiny_->ceka()) throw std::runtime_error("no tick is due");
    return zmer([this] { hodiny_->naTermin(); });
}

void BeziciProgram::odpovez(const std::function<void()>& akce, const QString& text) {
    bool zodpovezeno = false;
    QTimer hlidka;
    connect(&hlidka, &QTimer::timeout, this, [&] {
        QWidget* okno = QApplication::activeModalWidget();
        if (zodpovezeno || !okno || !okno->windowHandle() || !okno->windowHandle()->isExposed()) return;
        zodpovezeno = true;
        auto* vstup = okno->findChild<QLineEdit*>();
        if (!vstup) {
            okno->close(); // an unexpected message; what follows fails by itself
            return;
        }
        vstup->setText(text);
        QCoreApplication::processEvents();
        if (predPotvrzenim_) predPotvrzenim_();
        QTest::keyClick(vstup, Qt::Key_Return);
    });
    hlidka.start(5);
    akce();
    if (!zodpovezeno) throw std::runtime_error("the expected box did not appear");
}

void BeziciProgram::zalozPisen(const QString& nazev, int hmatu) {
    odpovez([this] { klikni(QStringLiteral("cmdNovaSkladba")); }, nazev);
    if (!program().modely().pisen.otevrena()) throw std::runtime_error("no song was created");
    CellBlock blok;
    for (int radek = 1; radek <= hmatu; ++radek)
        blok.push_back(radekPisne(radek, program().modely().tabulkaBasu));
    program().modely().pisen.excel().writeBlock(QStringLiteral("A1:W%1").arg(hmatu), blok);
    klikni(QStringLiteral("cmdPrvni"));
}

CasAkce BeziciProgram::otevri(const QString& nazev) {
    QWidget* tlacitko = program().okno().prvek(QStringLiteral("cmdEdit"));
    const QString soubor = program().pracovniSlozka() + QDir::separator() + nazev + QStringLiteral(".xls");
    const CasAkce cas = zmer([&] { odpovez([&] { QTest::mouseClick(tlacitko, Qt::LeftButton); }, soubor); });
    if (!program().modely().pisen.otevrena()) throw std::runtime_error("the song was not opened");
    return cas;
}

void BeziciProgram::naRadek(int radek) {
    program().modely().pisen.excel().selectRange(QStringLiteral("B%1").arg(radek));
    domaluj();
}

} // namespace zvonika::bench
