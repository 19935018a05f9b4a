#include "ukazka/ObrazkyPrirucky.h"

#include "app/Program.h"
#include "app/ui/Form1.h"
#include "app/ui/TwipsScene.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QTest>

#include <cstdlib>
#include <stdexcept>

namespace zvonika {

namespace {

// What is cut out of the main window, in twips of its scene.
constexpr QRect bezBasu{3840, 0, 12160, 10400};
constexpr QRect pas{7620, 0, 8380, 3040};
constexpr QRect basovaDeska{0, 850, 3810, 7300};
constexpr QRect osnovaZapisu{11990, 3000, 4010, 2340};
constexpr QRect deska{3840, 0, 3780, 10400};
constexpr QRect horniPulka{3840, 0, 3780, 5300};
constexpr QRect dolniPulka{3840, 5100, 3780, 5300};
constexpr QRect kolemPrstu{3840, 6000, 3780, 3000};

constexpr QSize velikostOkna(1088, 760); ///< the scene at its natural size, 15 twips to a pixel
constexpr QSize velikostTabulky(860, 420);
constexpr int sirkaStranky = 720; ///< points; wider pictures are made narrower, whole windows above all
constexpr int bodu = 2;           ///< pixels a point

/// Clicks a control of a dialog at the place where its mark or caption begins.
void klikniV(QWidget* okno, const QString& jmeno) {
    auto* cil = okno->findChild<QWidget*>(jmeno);
    if (!cil || !cil->isEnabled()) throw std::runtime_error("nelze použít: " + jmeno.toStdString());
    QTest::mouseClick(cil, Qt::LeftButton, {}, QPoint(8, cil->height() / 2));
}

} // namespace

ObrazkyPrirucky::ObrazkyPrirucky(Program& program, const QString& slozka, const QString& pisen)
    : Hrac(program, slozka), pisen_(pisen) {
    prevezmiOkno();
    program_.okno().resize(velikostOkna);
    tabulka()->resize(velikostTabulky);
}

void ObrazkyPrirucky::spadni() {
    otevri();
    klikni("cmdPosledni");
    for (int i = 0; i < 3; ++i) {
        klikni("cmdDalsi");
        oznac({"lbl(9)", "ImgBas(30)"});
        klikni("cmdTlak");
        klikni("cmdUvolKnofl");
    }
    std::_Exit(0);
}

void ObrazkyPrirucky::vyfot() {
    otevri();
    cteni();
    zapis();
    dialogy();
    hmatnik();
}

void ObrazkyPrirucky::otevri() {
    sOknem([this] { klikni("cmdEdit"); },
           [this](QWidget* okno) {
               auto* jmeno = okno->findChild<QLineEdit*>();
               if (!jmeno) { // left by a run that came to no good end
                   snimek("obnova", okno);
                   QTest::keyClick(okno, Qt::Key_Escape); // the song as it was saved
                   return;
               }
               jmeno->selectAll();
               napis(jmeno, pisen_);
               QTest::keyClick(jmeno, Qt::Key_Return);
           });
    cekej([this] { return program_.okno().windowTitle() == pisen_; }, "otevřená píseň");
}

void ObrazkyPrirucky::prejdiNa(int radek) {
    klikni("cmdPrvni");
    klikni("cmdReadTlak");
    for (int i = 1; i < radek; ++i)
        klikni("cmdJakDal");
    cekej([&] { return program_.aktualniRadek() == radek; }, "hmat písničky");
}

void ObrazkyPrirucky::oznac(const QStringList& prvky) {
    for (const QString& jmeno : prvky)
        klikni(jmeno);
}

void ObrazkyPrirucky::oznacSPrstem(const QString& knoflik, const QString& prst) {
    sOknem([&] { dvojklikni(knoflik); },
           [&](QWidget* vstup) {
               napis(vstup->findChild<QLineEdit*>(), prst);
               QTest::keyClick(vstup->findChild<QLineEdit*>(), Qt::Key_Return);
           });
}

void ObrazkyPrirucky::cteni() {
    prejdiNa(5);
    snimekOkna("hlavni-okno");
    snimekSceny("pas", pas);
    prejdiNa(8);
    snimekSceny("cteni", bezBasu);
    snimek("tabulka", tabulka());
}

void ObrazkyPrirucky::zapis() {
    klikni("cmdPosledni");
    klikni("cmdDalsi");
    klikni("cmdUvolKnofl");
    sOknem([this] { klikni("cmdStupnice"); },
           [this](QWidget* dialog) {
               klikniV(dialog, "optStupnice(0)");
               snimek("volba-toniny", dialog);
               klikniV(dialog, "cmdOK");
           });
    oznacSPrstem("lbl(9)", "1");
    oznacSPrstem("lbl(13)", "3");
    oznacSPrstem("lbl(16)", "5");
    oznac({"ImgBas(30)", "ImgBas(50)"});
    snimekOkna("zapis-hmatu");
    snimekSceny("basy", basovaDeska);
    snimekSceny("osnova-zapisu", osnovaZapisu);
    klikni("cmdTlak");
    klikni("cmdUvolKnofl");
    klikni("cmdJakDalZpet");
    snimekSceny("prstoklad", kolemPrstu);
    prejdiNa(1);
    QWidget* volba = prvek("cmbInterval");
    QTest::keyClick(volba, Qt::Key_Home);
    for (int i = 0; i < 3; ++i) // from the second to the fifth
        QTest::keyClick(volba, Qt::Key_Down);
    klikni("cmdIntervalOdNejnizsiho");
    snimekOkna("interval");
    klikni("cmdUvolKnofl");
}

void ObrazkyPrirucky::dialogy() {
    sDialogem("mnuKonverze", "konverze", "cmdKonec");
    sDialogem("mnuNastavCestu", "vychozi-slozka", "CancelButton");
}

void ObrazkyPrirucky::sDialogem(const QString& polozkaMenu, const QString& nazev, const QString& konec) {
    sOknem([&] { zvolVNabidce(polozkaMenu); },
           [&](QWidget* dialog) {
               snimek(nazev, dialog);
               klikniV(dialog, konec);
           });
}

void ObrazkyPrirucky::hmatnik() {
    prejdiNa(8);
    sOknem([this] { zvolVNabidce("mnuPrekrytRady"); },
           [this](QWidget* dialog) {
               klikniV(dialog, "cmdCDur");
               snimek("prekryt-rady", dialog);
               klikniV(dialog, "cmdOk");
           });
    cekej([this] { return program_.okno().isVisible(); }, "návrat hlavního okna");
    snimekSceny("zakryte-rady", dolniPulka);
    sOknem([this] { zvolVNabidce("mnuPrekrytRady"); },
           [](QWidget* dialog) {
               klikniV(dialog, "cmdNic");
               klikniV(dialog, "cmdOk");
           });
    cekej([this] { return program_.okno().isVisible(); }, "návrat hlavního okna");
    zvolVNabidce("mnu2Rady");
    zvolVNabidce("mnuCislovat");
    snimekSceny("nazvy", horniPulka);
    zvolVNabidce("mnu2Rady");
    zvolVNabidce("mnuOtocitHmatnik");
    snimekSceny("otoceno", deska);
}

/// The mark of the keyboard would stand for something in a picture.
void ObrazkyPrirucky::opustPrvek() {
    if (QWidget* prvek = program_.okno().focusWidget()) prvek->clearFocus();
}

void ObrazkyPrirucky::snimek(const QString& nazev, QWidget* okno, const QRect& vyrez) {
    QTest::qWait(0); // pending paints first
    QImage obraz = okno->grab(vyrez.isEmpty() ? okno->rect() : vyrez).toImage();
    if (obraz.width() > sirkaStranky * bodu)
        obraz = obraz.scaledToWidth(sirkaStranky * bodu, Qt::SmoothTransformation);
    const QString soubor = QStringLiteral("%1/%2.png").arg(slozka_, nazev);
    if (!obraz.save(soubor)) throw std::runtime_error("obrázek nelze uložit: " + soubor.toStdString());
}

void ObrazkyPrirucky::snimekSceny(const QString& nazev, const QRect& twips) {
    opustPrvek();
    auto* scena = static_cast<TwipsScene*>(program_.okno().centralWidget());
    snimek(nazev, scena, scena->toPixels(twips));
}

void ObrazkyPrirucky::snimekOkna(const QString& nazev) {
    opustPrvek();
    snimek(nazev, &program_.okno());
}

} // namespace zvonika
