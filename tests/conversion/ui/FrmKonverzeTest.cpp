#include "conversion/ui/FrmKonverze.h"

#include "tests/conversion/KonverzeFixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

namespace zvonika::testing {
namespace {

class FrmKonverzeTest : public KonverzeFixture {
protected:
    void ukaz() {
        konverze.Form_Load();
        okno = std::make_unique<FrmKonverze>(konverze, stav, [](const auto& procedura) { procedura(); });
        okno->show();
    }
    template <typename Prvek = QAbstractButton>
    Prvek* prvek(const QString& jmeno) const {
        auto* nalezeny = okno->findChild<Prvek*>(jmeno);
        if (!nalezeny) throw std::runtime_error(jmeno.toStdString());
        return nalezeny;
    }
    QString napis(const QString& jmeno) const { return prvek<QLabel>(jmeno)->text(); }
    void klikni(const QString& jmeno) const {
        QTest::mouseClick(prvek(jmeno), Qt::LeftButton, {}, QPoint(8, prvek(jmeno)->height() / 2));
    }
    /// Names of the controls that can be seen, in alphabetical order.
    QStringList videt() const {
        QStringList jmena;
        for (const char* jmeno :
             {"Label1", "cmdGo", "cmdPokracovat", "cmdVyberPisen", "lblKonec", "lblLadeni"})
            if (prvek<QWidget>(jmeno)->isVisible()) jmena << jmeno;
        return jmena;
    }

    std::unique_ptr<FrmKonverze> okno;
    const QString c = "B=c1,|I=Tah|W=C dur";
    const QString g = "B=g,|I=Tah|W=G dur";
};

TEST_F(FrmKonverzeTest, ShowsTheSongAndItsKey) {
    otevri({c}, "Já & ty.xls");
    ukaz();
    EXPECT_EQ(okno->windowTitle(), "Konverze ladění.");
    EXPECT_TRUE(okno->windowFlags().testFlag(Qt::WindowStaysOnTopHint) && okno->isModal());
    EXPECT_EQ(videt(), (QStringList{"Label1", "cmdGo", "cmdVyberPisen"}));
    EXPECT_EQ(prvek("cmdVyberPisen")->text(), "Já && ty.xls"); // a single & would become a mnemonic
    EXPECT_FALSE(prvek("cmdVyberPisen")->isEnabled());
    EXPECT_EQ(napis("lblStupnice"), "C dur");
    EXPECT_EQ(napis("Label2"), "Aktuální stupnice");
    EXPECT_EQ(napis("Label1"), "Vyberte cílové ladění");
    const QMap<QString, QString> popisky{{"Check1", "Vytvořit verzi pro heligonku"},
                                         {"cmdGo", "Provést"},
                                         {"cmdPokracovat", "Pokračovat"},
                                         {"cmdKonec", "Konec"},
                                         {"optStupnice(14)", "Ces dur"}};
    for (auto popisek = popisky.begin(); popisek != popisky.end(); ++popisek)
        EXPECT_EQ(prvek(popisek.key())->text(), popisek.value());
    EXPECT_FALSE(stav.optStupnice);
    const QLabel* prubeh = prvek<QLabel>("lblPrubeh");
    EXPECT_GE(prubeh->width(), prubeh->fontMetrics().horizontalAdvance("Převeden řádek 65536 …"));
}

TEST_F(FrmKonverzeTest, ASongWithoutAKeyCannotBeConverted) {
    otevri({"B=c1,"});
    ukaz();
    EXPECT_EQ(videt(), QStringList{"lblKonec"});
    EXPECT_EQ(napis("lblKonec"),
              "Konverzi aktuálního souboru bohužel nelze provést. Zkuste jinou korektně zapsanou skladbu !");
    const QLabel* veta = prvek<QLabel>("lblKonec");
    EXPECT_GE(veta->height(), veta->heightForWidth(veta->width()));
    QTest::keyClick(okno.get(), Qt::Key_Escape);
    EXPECT_FALSE(okno->isVisible());
}

TEST_F(FrmKonverzeTest, AKeyChangeIsGoneOnWithAndTheDialogCloses) {
    otevri({c, g});
    ukaz();
    klikni("optStupnice(2)");
    klikni("Check1");
    dialogs.expect("Přechod do jiné stupnice", "", Answer::Yes);
    klikni("cmdGo");
    EXPECT_EQ(okno->windowTitle(), "Změňte stupnici a stikněte pokračovat.");
    EXPECT_EQ(videt(), (QStringList{"Label1", "cmdGo", "cmdPokracovat", "cmdVyberPisen"}));
    EXPECT_FALSE(prvek("cmdGo")->isEnabled());
    EXPECT_EQ(napis("lblStupnice"), "G dur");
    EXPECT_EQ(okno->focusWidget(), prvek("optStupnice(2)"));
    klikni("optStupnice(8)");
    ocekavejHotovo();
    QTest::keyClick(okno.get(), Qt::Key_Return); // Pokračovat is the button that Enter chooses now
    EXPECT_FALSE(okno->isVisible());
    EXPECT_EQ(list(), "G dur-C dur-F dur");
    EXPECT_EQ(excel->text("B2"), "f1,");
}

TEST_F(FrmKonverzeTest, TheCloseBoxStopsARunAndWhatCannotBeUsedIsGrey) {
    otevri({c, c, c});
    ukaz();
    klikni("optStupnice(1)");
    zpravy = [&] {
        for (const char* jmeno : {"cmdGo", "optStupnice(3)", "Check1", "cmdVyberPisen"})
            EXPECT_FALSE(prvek(jmeno)->isEnabled()) << jmeno;
        EXPECT_EQ(napis("lblPrubeh"), stav.radek ? "Převeden řádek 1 …" : "");
        EXPECT_FALSE(okno->close());
    };
    klikni("cmdGo");
    EXPECT_FALSE(okno->isVisible());
    EXPECT_EQ(excel->text("W1"), "G dur");
    EXPECT_EQ(excel->text("W2"), "C dur");
    EXPECT_EQ(list(), "G dur Nedokončeno");
}

} // namespace
} // namespace zvonika::testing
