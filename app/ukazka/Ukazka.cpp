#include "app/ukazka/Ukazka.h"

#include "app/Program.h"
#include "app/ui/Form1.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <stdexcept>

namespace zvonika {

namespace {
constexpr int trpelivost = 10000; // ms until a stage counts as failed
const QString nazevPisne = QStringLiteral("Kočka leze dírou");

void napis(QWidget* kam, const QString& text) {
    for (const QChar znak : text)
        QTest::sendKeyEvent(QTest::Click, kam, Qt::Key_unknown, QString(znak), Qt::NoModifier);
}

} // namespace

Ukazka::Ukazka(Program& program, const QString& slozkaObrazku)
    : program_(program), slozka_(slozkaObrazku), hmaty_(kockaLezeDirou()) {}

void Ukazka::prehraj() {
    // Two windows come up at once and either may get the keyboard: the player turns to the main one.
    if (!QTest::qWaitForWindowExposed(&program_.okno(), trpelivost))
        throw std::runtime_error("hlavní okno není vidět");
    for (int pokus = 0; pokus < 10 && !program_.okno().isActiveWindow(); ++pokus) {
        program_.prejdiNaHlavniOkno();
        QTest::qWaitForWindowActive(&program_.okno(), trpelivost / 10);
    }
    if (!program_.okno().isActiveWindow()) throw std::runtime_error("hlavní okno nedostalo klávesnici");
    obrazek("spusteno");
    zvolToninu();
    zalozPisen();
    for (qsizetype i = 0; i < hmaty_.size(); ++i) {
        zapisHmat(hmaty_[i]);
        if (i == 5) obrazek("zapsano-sest-hmatu");
    }
    obrazek("zapsana-cela-pisen");
    napisSlabiky();
    ukonciPisen();
    otevriPisen();
    prejdiPisen();
    ukazInterval();
    krokujAutomatem();
    preved({1, false, nazevPisne + " G dur.xls", "Tonavox XII", "konverze"});
    ukonciPisen();
    otevriPisen();
    preved({8, true, nazevPisne + " F dur.xls", "G dur-C dur-F dur", "heligonka"});
    ukonciPisen();
    otevriPisen();
    prekryjRady();
    otocHmatnik();
    ukonciPisen();
}

void Ukazka::zvolToninu() {
    sOknem([this] { klikni("cmdStupnice"); },
           [this](QWidget* dialog) {
               QTest::mouseClick(dialog->findChild<QWidget*>("optStupnice(0)"), Qt::LeftButton, {},
                                 QPoint(8, dialog->findChild<QWidget*>("optStupnice(0)")->height() / 2));
               obrazek("volba-toniny");
               QTest::mouseClick(dialog->findChild<QWidget*>("cmdOK"), Qt::LeftButton);
           });
    cekej([this] { return program_.tonina() == QStringLiteral("C dur"); }, "tónina C dur");
}

void Ukazka::zalozPisen() {
    sOknem([this] { klikni("cmdNovaSkladba"); },
           [this](QWidget* okno) {
               auto* vstup = okno->findChild<QLineEdit*>();
               if (!vstup) { // first the box which says that the folder will be made
                   QTest::keyClick(okno, Qt::Key_Return);
                   return;
               }
               napis(vstup, nazevPisne);
               obrazek("nazev-pisne");
               QTest::keyClick(vstup, Qt::Key_Return);
           });
    cekej([this] { return program_.okno().windowTitle() == nazevPisne + ".xls"; }, "založená píseň");
    soubor_ = program_.pracovniSlozka() + QDir::separator() + nazevPisne + ".xls";
}

void Ukazka::zapisHmat(const HmatUkazky& hmat) {
    const int radek = program_.aktualniRadek();
    // The double click's first click marks the button, the second one asks for the finger.
    sOknem([&] { dvojklikni(QStringLiteral("lbl(%1)").arg(hmat.knoflik)); },
           [&](QWidget* vstup) {
               napis(vstup->findChild<QLineEdit*>(), QString::number(hmat.prst));
               QTest::keyClick(vstup->findChild<QLineEdit*>(), Qt::Key_Return);
           });
    klikni(QStringLiteral("ImgBas(%1)").arg(hmat.bas));
    if (radek == 3) obrazek("oznaceny-hmat");
    klikni(hmat.tlak ? "cmdTlak" : "cmdTah");
    cekej([&] { return program_.aktualniRadek() == radek + 1; },
          QStringLiteral("zapsaný hmat %1").arg(radek));
    klikni("cmdUvolKnofl");
}

void Ukazka::napisSlabiky() {
    klikni("cmdPrvni");
    QTest::keyClick(&program_.okno(), Qt::Key_F6);
    QWidget* okno = tabulka();
    if (!QTest::qWaitForWindowActive(okno, trpelivost))
        throw std::runtime_error("okno tabulky se neprobudilo");
    QTest::keyClick(QApplication::focusWidget(),
                    Qt::Key_Left); // from the grip's column B to the syllables in A
    for (const HmatUkazky& hmat : hmaty_) {
        for (const QChar znak : hmat.slabika) // the first one opens the cell's editor, which takes the rest
            napis(QApplication::focusWidget(), QString(znak));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr,
                                           QEvent::DeferredDelete); // the editor goes, the cells get the keys
        QCoreApplication::processEvents();
    }
    obrazek("slabiky-v-tabulce");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    if (!QTest::qWaitForWindowActive(&program_.okno(), trpelivost))
        throw std::runtime_error("hlavní okno se neprobudilo");
}

void Ukazka::ukonciPisen() {
    klikni("cmdEndEdit");
    cekej([this] { return program_.okno().windowTitle() == "Zvonika"; }, "konec písničky");
    obrazek("konec-pisnicky");
}

void Ukazka::otevriPisen() {
    sOknem([this] { klikni("cmdEdit"); },
           [this](QWidget* vyber) {
               obrazek("vyber-souboru");
               auto* jmeno = vyber->findChild<QLineEdit*>();
               if (!jmeno)
                   throw std::runtime_error("soubor nelze vybrat: " + vyber->windowTitle().toStdString());
               jmeno->selectAll();
               napis(jmeno, nazevPisne + ".xls");
               QTest::keyClick(jmeno, Qt::Key_Return);
           });
    cekej([this] { return program_.okno().windowTitle() == nazevPisne + ".xls"; }, "otevřená píseň");
    klikni("cmdPrvni");
    klikni(hmaty_[0].tlak ? "cmdReadTlak" : "cmdReadTah");
    obrazek("znovu-otevreno");
}

void Ukazka::prejdiPisen() {
    for (int radek = 2; radek <= hmaty_.size(); ++radek) {
        klikni("cmdJakDal");
        cekej([&] { return program_.aktualniRadek() == radek; },
              QStringLiteral("krok na hmat %1").arg(radek));
        if (radek == 8) obrazek("krok-osmy-hmat");
    }
    obrazek("posledni-hmat");
    for (int radek = int(hmaty_.size()) - 1; radek >= 1; --radek) {
        klikni("cmdJakDalZpet");
        cekej([&] { return program_.aktualniRadek() == radek; },
              QStringLiteral("krok zpět na hmat %1").arg(radek));
    }
    obrazek("zpet-na-zacatku");
}

void Ukazka::ukazInterval() {
    klikni("cmdIntervalOdNejnizsiho");
    cekej([this] { return program_.modely().zobrazovaciOsnova.interval().has_value(); }, "interval");
    obrazek("interval-od-nejnizsiho-tonu");
}

void Ukazka::krokujAutomatem() {
    QWidget* tempo = prvek("Slider1");
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(tempo, Qt::Key_Right);
    klikni("cmdTimer");
    cekej([this] { return program_.aktualniRadek() >= 6; }, "automatické krokování");
    obrazek("automat-krokuje");
    klikni("cmdTimer");
    klikni("cmdPrvni");
}

void Ukazka::prekryjRady() {
    zvolVNabidce("mnu2Rady");
    sOknem([this] { zvolVNabidce("mnuPrekrytRady"); },
           [this](QWidget* dialog) {
               auto* typ = dialog->findChild<QWidget*>("optTypPrstokladu(1)");
               QTest::mouseClick(typ, Qt::LeftButton, {}, QPoint(8, typ->height() / 2));
               QTest::mouseClick(dialog->findChild<QWidget*>("cmdFDur"), Qt::LeftButton); // reads "C Dur"
               obrazek("prekryti-rad");
               QTest::mouseClick(dialog->findChild<QWidget*>("cmdOk"), Qt::LeftButton);
           });
    cekej([this] { return program_.okno().isVisible(); }, "návrat hlavního okna");
    obrazek("prekryte-rady-a-nazvy");
}

void Ukazka::otocHmatnik() {
    zvolVNabidce("mnuOtocitHmatnik");
    cekej([this] { return !program_.okno().findChild<QAction*>("mnuOtocitHmatnik")->isEnabled(); },
          "otočený hmatník");
    klikni("cmdJakDal");
    obrazek("otoceny-hmatnik");
}

void Ukazka::zvolVNabidce(const QString& jmeno) {
    QMenuBar* lista = program_.okno().menuBar();
    auto* polozka = program_.okno().findChild<QAction*>(jmeno);
    for (QAction* nadpis : lista->actions()) {
        QMenu* nabidka = nadpis->menu();
        if (!nabidka->actions().contains(polozka)) continue;
        QTest::mouseClick(lista, Qt::LeftButton, {}, lista->actionGeometry(nadpis).center());
        cekej([nabidka] { return nabidka->isVisible(); }, "nabídka pro " + jmeno);
        QTest::mouseClick(nabidka, Qt::LeftButton, {}, nabidka->actionGeometry(polozka).center());
        return;
    }
}

QWidget* Ukazka::prvek(const QString& jmeno) const {
    QWidget* nalezeny = program_.okno().prvek(jmeno);
    if (!nalezeny || !nalezeny->isEnabled() || !nalezeny->isVisible())
        throw std::runtime_error("nelze použít: " + jmeno.toStdString());
    return nalezeny;
}

QWidget* Ukazka::tabulka() const {
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (okno->objectName() == QLatin1String("oknoTabulky") && okno->isVisible()) return okno;
    throw std::runtime_error("okno tabulky není vidět");
}

void Ukazka::klikni(const QString& jmeno) {
    QWidget* cil = prvek(jmeno);
    QTest::mouseClick(cil->window()->windowHandle(), Qt::LeftButton, {},
                      cil->mapTo(cil->window(), cil->rect().center()));
}

void Ukazka::dvojklikni(const QString& jmeno) {
    QWidget* cil = prvek(jmeno);
    QTest::mouseDClick(cil->window()->windowHandle(), Qt::LeftButton, {},
                       cil->mapTo(cil->window(), cil->rect().center()));
}

void Ukazka::sOknem(const std::function<void()>& akce, const std::function<void(QWidget*)>& obsluha) {
    QPointer<QWidget> obslouzene = QApplication::activeModalWidget();
    QElapsedTimer hodiny;
    hodiny.start();
    bool obslouzeno = false;
    std::exception_ptr chyba;
    QObject hlidka; // its going ends the watch
    const std::function<void()> hlidej = [&] {
        // Armed again first: a window that comes up while another one is being dealt with is seen as well.
        QTimer::singleShot(5, &hlidka, hlidej);
        QWidget* okno = QApplication::activeModalWidget();
        if (!okno || !okno->windowHandle() || !okno->windowHandle()->isExposed()) return;
        try {
            if (hodiny.elapsed() > trpelivost)
                throw std::runtime_error("okno zůstalo otevřené: " + okno->windowTitle().toStdString());
            if (okno == obslouzene) return;
            obslouzene = okno;
            obslouzeno = true;
            obsluha(okno);
        } catch (...) {
            if (!chyba) chyba = std::current_exception();
            okno->close();
        }
    };
    hlidej();
    akce();
    if (chyba) std::rethrow_exception(chyba);
    if (!obslouzeno) throw std::runtime_error("očekávané okno se neobjevilo");
}

void Ukazka::cekej(const std::function<bool()>& podminka, const QString& nac) {
    if (!QTest::qWaitFor(podminka, trpelivost)) throw std::runtime_error("nedočkáno: " + nac.toStdString());
}

void Ukazka::obrazek(const QString& nazev) {
    QTest::qWait(0); // pending paints first
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (okno->isVisible()) okno->repaint();
    QCoreApplication::processEvents();
    ++obrazku_;
    const QString soubor =
        QStringLiteral("%1/%2-%3.png").arg(slozka_).arg(obrazku_, 2, 10, QLatin1Char('0')).arg(nazev);
    QScreen* obrazovka = program_.okno().screen();
    QPixmap snimek = obrazovka->grabWindow(0); // the whole screen: both windows as the player sees them
    if (snimek.isNull()) snimek = program_.okno().grab();
    if (!snimek.save(soubor)) throw std::runtime_error("obrázek nelze uložit: " + soubor.toStdString());
}

} // namespace zvonika
