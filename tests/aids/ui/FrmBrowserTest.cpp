// The help window as a player uses it, with both browser controls.
#include "tests/aids/ui/Napoveda.h"

namespace zvonika::testing {

namespace {

class FrmBrowserTest : public Napoveda, public ::testing::WithParamInterface<Zobrazeni> {
protected:
    void SetUp() override {
        if (!postav(GetParam())) GTEST_SKIP() << "the plug-in with the web engine was not built";
        pis("prirucka/Tamík.htm", "<title>Příručka</title><h1>Bas</h1><p>Basy a zase basy.</p>"
                                  "<p><a href='b.htm'>dál</a></p><h2 id='kotva'>Konec</h2>");
        pis("prirucka/b.htm", "<title>Druhá</title><p>Tady basy nejsou.</p>");
        pis("tajne.htm", "<title>Tajné</title>");
        jdi("Tamík.htm", "Příručka");
    }
    void napisHledane(const QString& hledane) const {
        klavesa(Qt::Key_F, Qt::ControlModifier);
        pisZnaky(hledane);
    }
    void ocekavejVysledek(const QString& vysledek) const {
        EXPECT_TRUE(dokud([&] { return text("lblVysledek") == vysledek; }))
            << text("lblVysledek").toStdString();
    }
};

INSTANTIATE_TEST_SUITE_P(Views, FrmBrowserTest, ::testing::Values(Zobrazeni::Jednoduche, Zobrazeni::Uplne),
                         [](const auto& info) {
                             return info.param == Zobrazeni::Uplne ? "WebEngine" : "Lighter";
                         });

} // namespace

TEST_P(FrmBrowserTest, HistoryGoesBackAndForwardAndHomeIsTheManual) {
    EXPECT_EQ(cboAddress()->currentText(), cesta("Tamík.htm"));
    stiskni("Back"); // nowhere to go: nothing happens, nothing is said
    cekejTitulek("Příručka");
    jdi("b.htm", "Druhá");
    EXPECT_EQ(cboAddress()->currentText(), cesta("b.htm"));
    EXPECT_FALSE(akce("Forward")->isEnabled());
    stiskni("Back");
    cekejTitulek("Příručka");
    stiskni("Forward");
    cekejTitulek("Druhá");
    stiskni("Home");
    cekejTitulek("Příručka");
    EXPECT_EQ(text("lblStav"), "");
}

TEST_P(FrmBrowserTest, AnAddressIsTypedOrChosenFromThoseVisited) {
    napisAdresu("b.htm"); // a file of the manual's folder by its bare name
    cekejTitulek("Druhá");
    klavesa(Qt::Key_A, Qt::AltModifier);
    klavesa(Qt::Key_Down);
    cekejTitulek("Příručka");
    EXPECT_EQ(cboAddress()->currentText(), cesta("Tamík.htm"));
    cboAddress()->setEditText("b.htm");
    QTest::keyClick(cboAddress(), Qt::Key_Enter); // to the list as a whole
    cekejTitulek("Druhá");
}

TEST_P(FrmBrowserTest, APageChangedOnTheDiskIsReadAgain) {
    pis("prirucka/Tamík.htm", "<title>Nové vydání</title>");
    stiskni("Refresh");
    cekejTitulek("Nové vydání");
}

/// A page that is being loaded for as long as the test wants.
class RucniProhlizec : public QWidget, public Prohlizec {
public:
    explicit RucniProhlizec(const MistoProhlizece& misto) : QWidget(misto.rodic), okno_(misto.sledovani) {}
    QWidget* widget() override { return this; }
    /// The user follows a link in the page.
    void odkaz(const QUrl& kam, const QString& titulek) {
        titulek_ = titulek;
        okno_.prejito(kam);
    }
    void prejdi(const QUrl&) override { nacita = true; }
    void zpet() override {}
    void vpred() override {}
    bool muzeZpet() const override { return false; }
    bool muzeVpred() const override { return false; }
    void obnov() override { nacita = true; }
    void zastav() override { nacita = false; }
    bool zaneprazdnen() const override { return nacita; }
    QString titulek() const override { return titulek_; }
    void najdi(const QString&, bool) override {}

    bool nacita = false;

private:
    SledovaniProhlizece& okno_;
    QString titulek_ = QStringLiteral("Stránka");
};

TEST_F(Napoveda, TheCaptionTellsOfLoadingUntilThePageIsThere) {
    RucniProhlizec* prohlizec = nullptr;
    tvurce = [&](const MistoProhlizece& misto) {
        prohlizec = new RucniProhlizec(misto);
        return VytvorenyProhlizec{prohlizec, {}};
    };
    ASSERT_TRUE(postav(Zobrazeni::Dane));
    okno->prejdi(adresa("Tamík.htm"));
    cekejTitulek("Working...");
    prohlizec->nacita = false;
    cekejTitulek("Stránka");
    stiskni("Refresh");
    cekejTitulek("Working...");
    stiskni("Stop");
    EXPECT_EQ(okno->windowTitle(), "Stránka");
    prohlizec->odkaz(adresa("b.htm"), QStringLiteral("Druhá"));
    cekejTitulek("Druhá");
}

TEST_P(FrmBrowserTest, AMissingPageEndsOnAnErrorPageAndTheWindowGoesOn) {
    okno->prejdi(adresa("neni.htm"));
    EXPECT_TRUE(dokud([&] {
        return okno->windowTitle() != "Příručka" && okno->windowTitle() != "Working..." &&
               !okno->windowTitle().isEmpty();
    }));
    stiskni("Home");
    cekejTitulek("Příručka");
}

TEST_P(FrmBrowserTest, FilesOutsideTheManualsFolderAreRefused) {
    QFile::link(slozka.filePath("tajne.htm"), cesta("odkaz.htm"));
    for (const QString& napsana :
         {cesta("../tajne.htm"), cesta("odkaz.htm"), QString("file:///etc/passwd")}) {
        napisAdresu(napsana);
        EXPECT_TRUE(dokud([&] { return text("lblStav").contains("mimo příručku"); }))
            << napsana.toStdString();
        cekejTitulek("Příručka");
        napisAdresu(cesta("b.htm"));
        cekejTitulek("Druhá");
        stiskni("Home");
        cekejTitulek("Příručka");
    }
}

TEST_P(FrmBrowserTest, MailGoesToTheUsersOwnProgram) {
    napisAdresu("mailto:nekdo@example.org");
    EXPECT_TRUE(dokud([&] { return !ven.isEmpty(); }));
    EXPECT_EQ(ven, QStringList{"mailto:nekdo@example.org"});
    cekejTitulek("Příručka");
}

TEST_P(FrmBrowserTest, SearchCountsItsMatchesAndGoesRound) {
    napisHledane("bas");
    ocekavejVysledek("1 z 3");
    for (const char* vysledek : {"2 z 3", "3 z 3", "1 z 3"}) {
        klavesa(Qt::Key_Return);
        ocekavejVysledek(vysledek);
    }
    klavesa(Qt::Key_Return, Qt::ShiftModifier);
    ocekavejVysledek("3 z 3");
    napisHledane("harfa");
    ocekavejVysledek("Nenalezeno");
    klavesa(Qt::Key_Escape);
    EXPECT_FALSE(okno->findChild<QLineEdit*>("txtHledat")->isVisible());
}

TEST_P(FrmBrowserTest, TheEndIsToldOnceWhicheverWayItComes) {
    okno->close();
    EXPECT_EQ(zavreni, 1);
    okno.reset();
    EXPECT_EQ(zavreni, 1);
    ASSERT_TRUE(postav(GetParam()));
    okno->prejdi(adresa("Tamík.htm")); // and gone in the middle of loading
    okno.reset();
    EXPECT_EQ(zavreni, 2);
}

} // namespace zvonika::testing
