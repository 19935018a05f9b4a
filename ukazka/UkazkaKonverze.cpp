// The demonstration's conversions: into another key, and as a version for the heligonka.
#include "app/Program.h"
#include "app/ui/Form1.h"
#include "ukazka/Ukazka.h"

#include <QTest>

namespace zvonika {

namespace {

void klikniNaVolbu(QWidget* volba) {
    QTest::mouseClick(volba, Qt::LeftButton, {}, QPoint(8, volba->height() / 2));
}

} // namespace

void Ukazka::preved(const PrevodUkazky& prevod) {
    sOknem([this] { zvolVNabidce(QStringLiteral("mnuKonverze")); },
           [&](QWidget* okno) {
               if (okno->objectName() != u"frmKonverze") { // the box which says that it is done
                   obrazek(prevod.obrazek + QStringLiteral("-hotovo"));
                   QTest::keyClick(okno, Qt::Key_Return);
                   return;
               }
               klikniNaVolbu(okno->findChild<QWidget*>(QStringLiteral("optStupnice(%1)").arg(prevod.volba)));
               if (prevod.heligonka) klikniNaVolbu(okno->findChild<QWidget*>(QStringLiteral("Check1")));
               obrazek(prevod.obrazek);
               QTest::mouseClick(okno->findChild<QWidget*>(QStringLiteral("cmdGo")), Qt::LeftButton);
           });
    cekej([&] { return program_.okno().windowTitle() == prevod.kopie; }, prevod.kopie);
    cekej([&] { return program_.modely().panel.lblLadeni == prevod.list; }, prevod.list);
    obrazek(prevod.obrazek + QStringLiteral("-prevedeno"));
}

} // namespace zvonika
