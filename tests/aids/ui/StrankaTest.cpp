// What the pages themselves may do, and which browser control is chosen.
#include "tests/aids/ui/Napoveda.h"
#include "tests/support/Neighbours.h"
#include "tests/support/System.h"

#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QTextBrowser>
#ifndef Q_OS_WIN
#include <QTcpServer>
#include <QTcpSocket>
#endif

namespace zvonika::testing {

namespace {

const char* const nepostaveno = "the plug-in with the web engine was not built";

class StrankaTest : public Napoveda {
protected:
    qint64 renderProcess() const {
        for (const QObject* potomek : okno->findChildren<QObject*>())
            if (potomek->inherits("QWebEnginePage"))
                return potomek->property("renderProcessPid").toLongLong();
        return 0;
    }
};

/// Each attempt of a page's script to get out; the title tells what came of it.
struct Pokus {
    const char* jmeno;
    const char* skript; ///< sets `vysledek`; what it leaves as "..." is awaited
    const char* titulek;
};

const Pokus pokusy[] = {
    {"ProgramObjects", "vysledek = typeof qt + typeof window.external.call + typeof require",
     "undefinedundefinedundefined"},
    {"WindowOpen", "vysledek = window.open('b.htm') ? 'okno' : 'nic'", "nic"},
    {"FetchFile", "fetch('soused.txt').then(() => konec('cteno'), () => konec('nic'))", "nic"},
    {"RequestFile",
     "var r = new XMLHttpRequest(); r.onload = () => konec('cteno'); r.onerror = () => konec('nic');"
     "r.open('GET', '../tajne.txt'); r.send()",
     "nic"},
    {"Frame",
     "addEventListener('load', () => { try { konec(frames[0].document.body.innerText || 'nic') }"
     "catch (e) { konec('nic') } }); document.write('<iframe src=soused.txt></iframe>')",
     "nic"},
    {"PictureOutside",
     "var o = new Image(); o.onload = () => konec('cteno'); o.onerror = () => konec('nic'); o.src = "
     "'../tajny.png'",
     "nic"},
    {"PictureOfTheManual",
     "var o = new Image(); o.onload = () => konec('cteno'); o.onerror = () => konec('nic'); o.src = "
     "'obrazky/nas.png'",
     "cteno"},
    {"Storage", "try { localStorage.x = 1; vysledek = 'ulozeno' } catch (e) { vysledek = 'nic' }", "nic"},
    {"Boxes", "alert('a'); vysledek = String(confirm('b')) + prompt('c')", "falsenull"},
};

class SkriptTest : public Napoveda, public ::testing::WithParamInterface<Pokus> {};

INSTANTIATE_TEST_SUITE_P(Scripts, SkriptTest, ::testing::ValuesIn(pokusy),
                         [](const auto& info) { return info.param.jmeno; });

} // namespace

TEST_P(SkriptTest, StaysInThePage) {
    if (!postav(Zobrazeni::Uplne)) GTEST_SKIP() << nepostaveno;
    QImage obraz(4, 4, QImage::Format_RGB32);
    ASSERT_TRUE(obraz.save(cesta("obrazky/nas.png")) && obraz.save(slozka.filePath("tajny.png")));
    pis("tajne.txt", "tajné");
    pis("prirucka/soused.txt", "i soused je soubor");
    pis("prirucka/b.htm", "<title>Druhá</title>");
    pis("prirucka/Tamík.htm",
        QStringLiteral("<script>function konec(v) { document.title = v }\nvar vysledek;\n%1\n"
                       "if (vysledek !== undefined) konec(vysledek)</script>")
            .arg(GetParam().skript));
    jdi("Tamík.htm", GetParam().titulek);
}

#ifdef Q_OS_WIN
NOT_ON_WINDOWS(StrankaTest, AManualCannotCallHome, "there is no web engine")
NOT_ON_WINDOWS(StrankaTest, AFallenRenderProcessIsToldAndThePageComesBack, "there is no web engine")
NOT_ON_WINDOWS(StrankaTest, APageThatLeadsToTheMailIsAskedAboutOnce, "there is no web engine")
#else
TEST_F(StrankaTest, AManualCannotCallHome) {
    if (!postav(Zobrazeni::Uplne)) GTEST_SKIP() << nepostaveno;
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    pis("prirucka/Tamík.htm",
        QStringLiteral("<script>fetch('http://127.0.0.1:%1/').then(() => document.title = 'volal',"
                       "() => document.title = 'nic')</script>")
            .arg(server.serverPort()));
    jdi("Tamík.htm", "nic");
    EXPECT_FALSE(server.hasPendingConnections());
}

TEST_F(StrankaTest, AFallenRenderProcessIsToldAndThePageComesBack) {
    if (!postav(Zobrazeni::Uplne)) GTEST_SKIP() << nepostaveno;
    pis("prirucka/Tamík.htm", "<title>Příručka</title>");
    jdi("Tamík.htm", "Příručka");
    for (int pad = 0; pad < 2; ++pad) {
        const auto proces = renderProcess();
        ASSERT_GT(proces, 1);
        ::kill(pid_t(proces), SIGKILL);
        EXPECT_TRUE(dokud([&] { return text("lblStav").contains("zhroutilo"); }));
        pis("prirucka/Tamík.htm", QStringLiteral("<title>Znovu %1</title>").arg(pad));
        stiskni("Refresh");
        cekejTitulek(QStringLiteral("Znovu %1").arg(pad));
        EXPECT_EQ(text("lblStav"), "");
    }
    ::kill(pid_t(renderProcess()), SIGKILL); // the last time the window is closed as it is
    EXPECT_TRUE(dokud([&] { return text("lblStav").contains("zhroutilo"); }));
    okno->close();
    EXPECT_EQ(zavreni, 1);
}

TEST_F(StrankaTest, APageThatLeadsToTheMailIsAskedAboutOnce) {
    if (!postav(Zobrazeni::Uplne)) GTEST_SKIP() << nepostaveno;
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection, okno.get(), [&server] {
        QTcpSocket* spojeni = server.nextPendingConnection();
        QObject::connect(spojeni, &QTcpSocket::readyRead, spojeni, [spojeni] {
            spojeni->write("HTTP/1.1 302 Found\r\nLocation: mailto:cizi@example.org\r\nContent-Length: 0\r\n"
                           "Connection: close\r\n\r\n");
            spojeni->disconnectFromHost();
        });
    });
    pis("prirucka/Tamík.htm", "<title>Příručka</title>");
    jdi("Tamík.htm", "Příručka");
    const QString presmerovana = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    for (const bool ano : {false, true}) {
        odpoved = ano;
        otazky.clear();
        okno->prejdi(QUrl(presmerovana));
        EXPECT_TRUE(dokud([&] { return !otazky.isEmpty(); }));
        EXPECT_EQ(otazky, QStringList{"mailto:cizi@example.org"});
        EXPECT_EQ(ven, ano ? QStringList{"mailto:cizi@example.org"} : QStringList());
    }
    for (const auto& [odkaz, ptaSe] :
         {std::pair(presmerovana, true), {QStringLiteral("mailto:nas@example.org"), false}}) {
        pis("prirucka/odkaz.htm",
            QStringLiteral("<title>%1</title><a href='%1' style='position:fixed;inset:0'>x</a>").arg(odkaz));
        jdi("odkaz.htm", odkaz);
        otazky.clear();
        ven.clear();
        auto* stranka = okno->findChild<QWidget*>("brwWebBrowser")->focusProxy()->focusProxy();
        ASSERT_TRUE(stranka);
        QTest::mouseClick(stranka, Qt::LeftButton, {}, stranka->rect().center());
        EXPECT_TRUE(dokud([&] { return !ven.isEmpty(); })) << odkaz.toStdString();
        EXPECT_EQ(!otazky.isEmpty(), ptaSe) << odkaz.toStdString();
    }
}
#endif

TEST_F(StrankaTest, NothingIsDownloaded) {
    if (!postav(Zobrazeni::Uplne)) GTEST_SKIP() << nepostaveno;
    pis("prirucka/Tamík.htm", "<title>Příručka</title>");
    pis("prirucka/balik.zip", "PK");
    jdi("Tamík.htm", "Příručka");
    napisAdresu("balik.zip");
    EXPECT_TRUE(dokud([&] { return text("lblStav").contains("nestahují"); }));
    cekejTitulek("Příručka");
}

TEST_F(StrankaTest, TheLighterViewSaysWhyItStandsIn) {
    const auto duvod = [this](const QStringList& slozky, WebSandbox (*piskoviste)()) {
        tvurce = volbaProhlizece(slozky, piskoviste);
        EXPECT_TRUE(postav(Zobrazeni::Dane));
        EXPECT_TRUE(okno->findChild<QTextBrowser*>("brwWebBrowser"));
        const auto* nahrada = okno->findChild<QLabel*>("lblNahrada");
        return nahrada ? nahrada->text() : QString();
    };
    pis("libzvonika_webengine.so", "this is no library");
#ifdef Q_OS_WIN
    const QString zadna; // nobody can have it there
#else
    const QString zadna = "Zjednodušené zobrazení: není nainstalována součást Qt WebEngine.";
#endif
    const auto vPoradku = [] { return WebSandbox::Usable; };
    EXPECT_EQ(duvod({slozka.filePath("neni")}, vPoradku), zadna);
    EXPECT_EQ(duvod({slozka.filePath("neni"), slozka.path()}, vPoradku), zadna);
    EXPECT_TRUE(
        duvod({slozka.path()}, [] { return WebSandbox::NotForRoot; }).contains("pod správcem systému"));
    EXPECT_TRUE(duvod({slozka.path()}, [] { return WebSandbox::NoUserNamespaces; }).contains("nedovoluje"));
}

TEST_F(StrankaTest, TheLighterViewReadsNothingOutsideTheManual) {
    ASSERT_TRUE(postav(Zobrazeni::Jednoduche));
    QImage cerveny(400, 400, QImage::Format_RGB32);
    cerveny.fill(Qt::red);
    const QString tajny = slozka.filePath("tajny.png");
    ASSERT_TRUE(cerveny.save(tajny) && cerveny.save(cesta("obrazky/nas.png")));
    pis("tajne.css", "p { color: #ff0000; font-size: 90px }");
    const auto cervene = [this] {
        const QImage obraz = okno->grab().toImage();
        qsizetype kolik = 0;
        for (int y = 0; y < obraz.height(); ++y)
            for (int x = 0; x < obraz.width(); ++x)
                kolik += obraz.pixelColor(x, y) == QColor(Qt::red);
        return kolik;
    };
    pis("prirucka/nase.htm", "<title>Naše</title><img src='obrazky/nas.png'>");
    jdi("nase.htm", "Naše");
    EXPECT_GT(cervene(), 1000) << "what red is looked for";
    const QString cizi[] = {
        QStringLiteral("<img src='../tajny.png'>"),
        "<img src='" + tajny + "'>",
        "<img src='file://" + tajny + "'>",
        "<body background='../tajny.png'>a</body>",
        QStringLiteral("<p style=\"background-image:url('../tajny.png')\">a</p>"),
        QStringLiteral("<link rel='stylesheet' href='../tajne.css'><p>aaaa</p>"),
        QStringLiteral("<img src=':/qt-project.org/styles/commonstyle/images/file-16.png'>")};
    for (int i = 0; const QString& obsah : cizi) {
        pis("prirucka/Tamík.htm", QStringLiteral("<title>Cizí %1</title>").arg(i) + obsah);
        jdi("Tamík.htm", QStringLiteral("Cizí %1").arg(i++));
        EXPECT_EQ(cervene(), 0) << obsah.toStdString();
        okno->prejdi(adresa("nase.htm"));
    }
    for (const Neighbour& soused : neighbours) {
        const QString jmeno = QString::fromLatin1(soused.what).replace(' ', '_').remove(u'\'');
        ASSERT_TRUE(soused.put(cesta(jmeno))) << soused.what;
        pis("prirucka/Tamík.htm",
            QStringLiteral("<title>%1</title><img src='%1'><link rel=stylesheet href='%1'>").arg(jmeno));
        jdi("Tamík.htm", jmeno);
        okno->prejdi(adresa(jmeno));
        okno->prejdi(adresa("nase.htm"));
        cekejTitulek("Naše");
    }
}

TEST_F(StrankaTest, WhatIsLetGoOverThePageIsNotOpened) {
    for (const Zobrazeni zobrazeni : {Zobrazeni::Jednoduche, Zobrazeni::Uplne}) {
        if (!postav(zobrazeni)) continue;
        pis("prirucka/Tamík.htm", "<title>Příručka</title>");
        pis("prirucka/b.htm", "<title>Druhá</title>");
        jdi("Tamík.htm", "Příručka");
        QMimeData obsah;
        obsah.setUrls({adresa("b.htm")});
        auto* stranka = okno->findChild<QWidget*>("brwWebBrowser");
        QList<QWidget*> prvky = stranka->findChildren<QWidget*>();
        for (QWidget* prvek : prvky << stranka) {
            QDragEnterEvent vstup(prvek->rect().center(), Qt::CopyAction, &obsah, Qt::LeftButton, {});
            vstup.ignore();
            if (prvek->acceptDrops()) QCoreApplication::sendEvent(prvek, &vstup);
            EXPECT_FALSE(vstup.isAccepted() && prvek->acceptDrops()) << prvek->metaObject()->className();
        }
    }
}

TEST_F(StrankaTest, TheLighterViewLeavesTheWebToTheUsersBrowser) {
    ASSERT_TRUE(postav(Zobrazeni::Jednoduche));
    pis("prirucka/Tamík.htm",
        "<title>Příručka</title><img src='../tajny.png'><a href='https://example.org/x'>web</a>");
    jdi("Tamík.htm", "Příručka");
    napisAdresu("https://example.org/x?a=b%20c");
    EXPECT_EQ(ven, QStringList{"https://example.org/x?a=b%20c"});
    EXPECT_EQ(okno->windowTitle(), "Příručka");
}

} // namespace zvonika::testing
