#include "ukazka/Hrac.h"

#include "app/Program.h"
#include "app/ui/Form1.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <stdexcept>
#include <utility>

namespace zvonika {

namespace {
constexpr int trpelivost = 10000; // ms until a stage counts as failed
} // namespace

void Hrac::prevezmiOkno() {
    // Two windows come up at once and either may get the keyboard: the player turns to the main one.
    if (!QTest::qWaitForWindowExposed(&program_.okno(), trpelivost))
        throw std::runtime_error("hlavní okno není vidět");
    for (int pokus = 0; pokus < 10; ++pokus) {
        program_.prejdiNaHlavniOkno();
        if (QTest::qWaitForWindowActive(&program_.okno(), trpelivost / 10)) return;
    }
    throw std::runtime_error("hlavní okno nedostalo klávesnici");
}

void Hrac::cekejNaOkno(QWidget* okno, const QString& ktere) {
    if (!QTest::qWaitForWindowActive(okno, trpelivost))
        throw std::runtime_error(ktere.toStdString() + " se neprobudilo");
}

void Hrac::napis(QWidget* kam, const QString& text) {
    for (const QChar znak : text)
        QTest::sendKeyEvent(QTest::Click, kam, Qt::Key_unknown, QString(znak), Qt::NoModifier);
}

void Hrac::zvolVNabidce(const QString& jmeno) {
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

QWidget* Hrac::prvek(const QString& jmeno) const {
    QWidget* nalezeny = program_.okno().prvek(jmeno);
    if (!nalezeny || !nalezeny->isEnabled() || !nalezeny->isVisible())
        throw std::runtime_error("nelze použít: " + jmeno.toStdString());
    return nalezeny;
}

QWidget* Hrac::tabulka() const {
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (okno->objectName() == QLatin1String("oknoTabulky") && okno->isVisible()) return okno;
    throw std::runtime_error("okno tabulky není vidět");
}

void Hrac::klikni(const QString& jmeno) {
    QWidget* cil = prvek(jmeno);
    QTest::mouseClick(cil->window()->windowHandle(), Qt::LeftButton, {},
                      cil->mapTo(cil->window(), cil->rect().center()));
}

void Hrac::dvojklikni(const QString& jmeno) {
    QWidget* cil = prvek(jmeno);
    QTest::mouseDClick(cil->window()->windowHandle(), Qt::LeftButton, {},
                       cil->mapTo(cil->window(), cil->rect().center()));
}

void Hrac::sOknem(const std::function<void()>& akce, const std::function<void(QWidget*)>& obsluha) {
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

void Hrac::cekej(const std::function<bool()>& podminka, const QString& nac) {
    if (!QTest::qWaitFor(podminka, trpelivost)) throw std::runtime_error("nedočkáno: " + nac.toStdString());
}

void Hrac::obrazek(const QString& nazev) {
    QTest::qWait(0); // pending paints first
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (okno->isVisible()) okno->repaint();
    QCoreApplication::processEvents();
    ++obrazku_;
    const QString soubor =
        QStringLiteral("%1/%2-%3.png").arg(slozka_).arg(obrazku_, 2, 10, QLatin1Char('0')).arg(nazev);
    const QImage obraz = ustaleny();
    if (!obraz.save(soubor)) throw std::runtime_error("obrázek nelze uložit: " + soubor.toStdString());
}

QImage Hrac::ustaleny() const {
    QImage obraz = snimek();
    for (int cekano = 0; ustaleni_ > 0 && cekano < trpelivost; cekano += ustaleni_) {
        QTest::qWait(ustaleni_);
        const QImage predtim = std::exchange(obraz, snimek());
        if (obraz == predtim) break;
    }
    return obraz;
}

QImage Hrac::snimek() const {
    // The whole screen: both windows as the player sees them.
    const QPixmap obrazovka = program_.okno().screen()->grabWindow(0);
    return (obrazovka.isNull() ? program_.okno().grab() : obrazovka).toImage();
}

} // namespace zvonika
