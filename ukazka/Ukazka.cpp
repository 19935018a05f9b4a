#include "ukazka/Ukazka.h"

#include "app/Program.h"
#include "app/ui/Form1.h"
#include "ukazka/PisarCalcu.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>

#include <stdexcept>

namespace zvonika {

namespace {
const QString nazevPisne = QStringLiteral("Kočka leze dírou");
constexpr int ustaleniCalcu = 300; // ms in which Calc would have painted what it still has to

} // namespace

Ukazka::Ukazka(Program& program, const QString& slozkaObrazku, Tabulka tabulka)
    : Hrac(program, slozkaObrazku, tabulka == Tabulka::Vestavena ? 0 : ustaleniCalcu), tabulka_(tabulka),
      hmaty_(kockaLezeDirou()) {}

void Ukazka::prehraj() {
    prevezmiOkno();
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
    cekejNaOkno(&program_.okno(), "hlavní okno nad novou písní");
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
    QStringList slabiky;
    for (const HmatUkazky& hmat : hmaty_)
        slabiky << hmat.slabika;
    if (tabulka_ == Tabulka::LibreOffice)
        pisDoCalcu(program_, slabiky);
    else
        pisDoTabulky(slabiky);
    obrazek("slabiky-v-tabulce");
    if (tabulka_ == Tabulka::LibreOffice)
        program_.prejdiNaHlavniOkno(); // Calc keeps F6 for itself
    else
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    cekejNaOkno(&program_.okno(), "hlavní okno");
}

void Ukazka::pisDoTabulky(const QStringList& slabiky) {
    QTest::keyClick(&program_.okno(), Qt::Key_F6);
    cekejNaOkno(tabulka(), "okno tabulky");
    QTest::keyClick(QApplication::focusWidget(),
                    Qt::Key_Left); // from the grip's column B to the syllables in A
    for (const QString& slabika : slabiky) {
        for (const QChar znak : slabika) // the first one opens the cell's editor, which takes the rest
            napis(QApplication::focusWidget(), QString(znak));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr,
                                           QEvent::DeferredDelete); // the editor goes, the cells get the keys
        QCoreApplication::processEvents();
    }
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
    cekejNaOkno(&program_.okno(), "hlavní okno nad otevřenou písní");
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

} // namespace zvonika
