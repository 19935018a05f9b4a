#pragma once

#include "aids/WebSandbox.h"
#include "aids/ui/FrmBrowser.h"
#include "aids/ui/VolbaProhlizece.h"
#include "tests/support/PrintQt.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zvonika::testing {

enum class Zobrazeni { Jednoduche, Uplne, Dane };

/// The help window on a folder of pages of its own.
class Napoveda : public ::testing::Test {
protected:
    void pis(const QString& soubor, const QString& obsah) const {
        QFile psany(slozka.filePath(soubor));
        ASSERT_TRUE(psany.open(QIODevice::WriteOnly)) << soubor.toStdString();
        if (soubor.endsWith(".htm")) psany.write("<meta charset='utf-8'>");
        psany.write(obsah.toUtf8());
    }
    QString cesta(const QString& soubor) const { return slozka.filePath("prirucka/" + soubor); }
    QUrl adresa(const QString& soubor) const { return QUrl::fromLocalFile(cesta(soubor)); }

    /// False where the plug-in with the web engine was not built.
    bool postav(Zobrazeni zobrazeni, const QString& StartingAddress = {}) {
        QDir(slozka.path()).mkpath("prirucka/obrazky");
        if (zobrazeni == Zobrazeni::Jednoduche) tvurce = jednoduchyProhlizec();
        if (zobrazeni == Zobrazeni::Uplne) {
            if (QDir(ZVONIKA_PLUGINS).entryList({"*zvonika_webengine.*"}).isEmpty()) return false;
            // Machines that run tests as root or in a container have no sandbox to offer.
            if (webSandbox() != WebSandbox::Usable) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
            tvurce = volbaProhlizece({ZVONIKA_PLUGINS});
        }
        okno = std::make_unique<FrmBrowser>(
            ProstrediProhlizece{tvurce, slozka.filePath("prirucka"), adresa("Tamík.htm"),
                                [this](const QString& odkaz) { return ven << odkaz, true; },
                                [this](const QString& odkaz) { return otazky << odkaz, odpoved; }},
            StartingAddress);
        QObject::connect(okno.get(), &FrmBrowser::zavreno, qApp, [this] { ++zavreni; });
        okno->resize(800, 600);
        okno->show();
        return QTest::qWaitForWindowActive(okno.get());
    }

    /// Waits in a real event loop: the engine does its work there in many small pieces.
    template <typename Podminka>
    static bool dokud(Podminka podminka) {
        QEventLoop smycka;
        QTimer pohled, trpelivost;
        QObject::connect(&pohled, &QTimer::timeout, &smycka, [&] {
            if (podminka()) smycka.exit(1);
        });
        QObject::connect(&trpelivost, &QTimer::timeout, &smycka, [&] { smycka.exit(podminka() ? 1 : 0); });
        pohled.start(5);
        trpelivost.start(15000);
        return smycka.exec() == 1;
    }

    void cekejTitulek(const QString& titulek) const {
        EXPECT_TRUE(dokud([&] { return okno->windowTitle() == titulek; }))
            << "expected " << titulek.toStdString() << ", shown: " << okno->windowTitle().toStdString();
    }
    void jdi(const QString& soubor, const QString& titulek) const {
        okno->prejdi(adresa(soubor));
        cekejTitulek(titulek);
    }
    void stiskni(const char* klic) const { akce(klic)->trigger(); }
    QAction* akce(const char* klic) const { return okno->findChild<QAction*>(klic); }
    QComboBox* cboAddress() const { return okno->findChild<QComboBox*>("cboAddress"); }
    QString text(const char* popisek) const {
        const auto* nalezeny = okno->findChild<QLabel*>(popisek);
        return nalezeny ? nalezeny->text() : QString();
    }
    /// To the window: the widget that has the focus gets it.
    void klavesa(Qt::Key key, Qt::KeyboardModifiers m = {}) const {
        QTest::keyClick(okno->windowHandle(), key, m);
    }
    void pisZnaky(const QString& text) const {
        for (const QChar znak : text)
            QTest::sendKeyEvent(QTest::Click, okno->windowHandle(), Qt::Key_unknown, QString(znak), {});
    }
    void napisAdresu(const QString& napsana) const {
        klavesa(Qt::Key_A, Qt::AltModifier); // the mnemonic of its label
        klavesa(Qt::Key_A, Qt::ControlModifier);
        pisZnaky(napsana);
        klavesa(Qt::Key_Return);
    }

    QTemporaryDir slozka;
    TvurceProhlizece tvurce;
    QStringList ven, otazky;
    bool odpoved = false; ///< to the question whether a page may lead out by itself
    int zavreni = 0;
    std::unique_ptr<FrmBrowser> okno;
};

} // namespace zvonika::testing
