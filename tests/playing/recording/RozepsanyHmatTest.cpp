#include "playing/recording/RozepsanyHmat.h"

#include "playing/recording/ZapisNoty.h"
#include "tests/playing/recording/ZapisovaniFixture.h"

#include <map>

namespace zvonika {
namespace {

using testing::s;

/// What a window shows that repaints what it is told of and nothing else.
class Okno : public QObject {
public:
    Okno(const TrebleBoard& diskant, const BassBoard& basy, const NotovaOsnova& osnova) {
        const auto knoflik = [this, &diskant](int n) {
            pis("lbl", n, {diskant.oznacen(n), int(diskant.stav(n)), int(diskant.stavPomocneho(n))});
        };
        const auto klavesa = [this, &diskant](int n) {
            pis("cmdKlavesa", n, {int(diskant.barvaKlavesy(n))}, diskant.tonKlavesy(n));
        };
        const auto bas = [this, &basy](int n) { pis("ImgBas", n, {basy.oznacen(n), int(basy.stav(n))}); };
        const auto noty = [this, &osnova] {
            for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot) {
                const NotaOsnovy nota = osnova.nota(slot).value_or(NotaOsnovy());
                pis("nota", slot, {nota.ton.hodnota(), int(nota.poloha.znamenko), nota.poloha.jednotky});
            }
        };
        connect(&diskant, &TrebleBoard::knoflikZmenen, this, knoflik);
        connect(&diskant, &TrebleBoard::klavesaZmenena, this, klavesa);
        connect(&basy, &BassBoard::basZmenen, this, bas);
        connect(&osnova, &NotovaOsnova::changed, this, noty);
        for (int n = 1; n <= diskant.nastroj().pocetKnofliku(); ++n)
            knoflik(n), klavesa(n);
        for (int n = 1; n <= basy.nastroj().pocetBasu(); ++n)
            bas(n);
        noty();
    }
    const std::map<QString, QString>& videno() const { return videno_; }

private:
    void pis(const char* prvek, int n, std::initializer_list<int> hodnoty, QString text = {}) {
        for (const int hodnota : hodnoty)
            text += QStringLiteral(" %1").arg(hodnota);
        videno_[prvek + QString::number(n)] = text;
    }

    std::map<QString, QString> videno_;
};

class RozepsanyHmatTest : public testing::Zapisovani {
protected:
    RozepsanyHmatTest() { zvolToninu("C dur"); }

    void pridejNotu(int jednotky, Znamenko znamenko = Znamenko::Zadne) {
        const int slot = noty.pridejNotu(jednotky).value();
        zapisNoty.notaVlozena(slot);
        if (znamenko == Znamenko::Zadne) return;
        const CisloTonu puvodni = osnova.nota(slot)->ton;
        dialogs.expect(QStringLiteral("Nota je mimo stupnici."), "", Answer::Yes);
        ASSERT_TRUE(noty.nastavZnamenko(slot, znamenko));
        zapisNoty.notaZmenena(slot, puvodni);
    }

    /// Goes through the steps and then from what was there after each to what was there after each other.
    void projdi(const std::vector<std::function<void()>>& kroky) {
        struct Chvile {
            RozepsanyHmat hmat;
            std::map<QString, QString> videno;
        };
        const Okno okno(diskant, basy, osnova);
        std::vector<Chvile> chvile{{odecti(modely), okno.videno()}};
        for (const auto& krok : kroky) {
            krok();
            EXPECT_FALSE(odecti(modely) == chvile.back().hmat) << "step " << chvile.size();
            chvile.push_back({odecti(modely), okno.videno()});
        }
        for (const Chvile& odkud : chvile)
            for (const Chvile& kam : chvile) {
                ukaz(modely, odkud.hmat);
                ukaz(modely, kam.hmat);
                EXPECT_TRUE(!osnova.vybranySlot() || osnova.nota(*osnova.vybranySlot()));
                EXPECT_TRUE(odecti(modely) == kam.hmat);
                EXPECT_EQ(okno.videno(), kam.videno)
                    << "from step " << &odkud - chvile.data() << " to " << &kam - chvile.data();
            }
    }

    KlikDiskantu klik{diskant, noty, tonina, dialogs, {[] {}, [](const QString&) {}}};
    ZapisNoty zapisNoty{osnova, klik};
    Uvolneni uvolneni{diskant, basy, osnova, zobrazovaci, prstoklad};
    ModelyHmatu modely{diskant, basy, osnova, noty, prstoklad};
};

TEST_F(RozepsanyHmatTest, EachStepIsTakenBackAndDoneAgain) {
    projdi({
        [&] { klik.klik(9); },
        [&] { klik.klik(28); }, // its key is not of the colour that it is given back
        [&] { basy.klik(30); },
        [&] { pridejNotu(480, Znamenko::Krizek); },
        [&] { pridejPrst(9, "1"); },
        [&] { klik.klik(28); },
        [&] { basy.klik(30); },
        [&] { noty.odeberNotu(0); },
        [&] { uvolneni.uvolniVse(); },
    });
}

TEST_F(RozepsanyHmatTest, MarksOfAShownGripAndIntervalToo) {
    for (const int n : {9, 13, 16})
        klik.klik(n);
    basy.klik(30);
    for (const int n : {13, 16, 20})
        diskant.ukazHmat(n, StavKnofliku::Tah);
    for (const int bas : {30, 51})
        basy.ukazHmat(bas, StavBasu::Tlak);
    diskant.ukazInterval(16);
    projdi({
        [&] { klik.klik(13); }, // marked under the grip
        [&] { klik.klik(20); }, // only the grip's
        [&] { klik.klik(16); }, // marked under the grip under the interval
        [&] { klik.klik(16); },
        [&] { klik.klik(20); },
        [&] { klik.klik(9); },
        [&] { basy.klik(30); },
        [&] { basy.klik(51); },
        [&] { pridejNotu(480); },
    });
    diskant.odeberInterval();
    EXPECT_EQ(diskant.stav(16), StavKnofliku::Cerveny);
    diskant.odeberHmat();
    EXPECT_EQ(diskant.stav(20), StavKnofliku::Volny);
    basy.odeberHmat();
    EXPECT_EQ(basy.stav(51), StavBasu::Cerveny);
}

TEST_F(RozepsanyHmatTest, OverAnotherGripItsMarksAreShownAndTheGripStays) {
    klik.klik(9);
    diskant.ukazHmat(13, StavKnofliku::Tah);
    klik.klik(13);
    const RozepsanyHmat hmat = odecti(modely);
    uvolneni.uvolniVse();
    diskant.ukazHmat(9, StavKnofliku::Tlak);
    diskant.ukazHmat(20, StavKnofliku::Tlak);
    ukaz(modely, hmat);
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Tlak) << "covered, as a grip covers marks";
    EXPECT_TRUE(diskant.oznacen(9));
    EXPECT_EQ(diskant.stav(13), StavKnofliku::Cerveny);
    EXPECT_EQ(diskant.stav(20), StavKnofliku::Tlak);
}

TEST_F(RozepsanyHmatTest, UnderAnotherKeyItsTonesAreSpelledAnew) {
    zvolToninu("G dur");
    klik.klik(3);
    const RozepsanyHmat hmat = odecti(modely);
    uvolneni.uvolniVse();
    zvolToninu("Ges dur");
    ukaz(modely, hmat);
    EXPECT_EQ(s(diskant.tonKlavesy(3)), "ges,");
    EXPECT_EQ(s(noty.ctenyNazev(0).text()), "ges,");
    EXPECT_EQ(osnova.nota(0)->ton, CisloTonu(3));
    EXPECT_EQ(s(osnova.stupnice().text()), "Ges dur");
}

} // namespace
} // namespace zvonika
