#include "board/BassBoard.h"
#include "board/ui/BasKnoflik.h"
#include "board/ui/Hmatnik.h"
#include "board/ui/ObrazyPrvku.h"
#include "board/ui/OstrovFokusu.h"
#include "board/ui/Popisek.h"
#include "board/ui/Pozadi.h"
#include "board/ui/Skupina.h"

#include <array>

namespace zvonika {

namespace {

constexpr QSize velikostBasu(590, 292); // fills its cell of 600 by 300: no gap between neighbours to miss in
constexpr int basuVRade = 20;
constexpr int vyskaNadpisu = 255;
constexpr int prvniZastavka = 30; // C

struct Rada {
    const char16_t* nadpis;
    const char16_t* napoveda;
};
constexpr std::array<Rada, 6> rady{{{u"Prot.", u"Protibasy"},
                                    {u"Zákl.", u"Základní basy"},
                                    {u"Dur", u"Durové akordy"},
                                    {u"Moll", u"Mollové akordy"},
                                    {u"Sept.", u"Septakordy"},
                                    {u"Zmen.", u"Zmenšené akordy"}}};

QRect plochaRady(int r) {
    const Poloha horni = polohaBasu(r * basuVRade + basuVRade);
    const Poloha dolni = polohaBasu(r * basuVRade + 1);
    return QRect(QPoint(horni.left, horni.top),
                 QPoint(dolni.left + velikostBasu.width(), dolni.top + velikostBasu.height()));
}

QRect plochaNadpisu(int r) {
    const QRect rada = plochaRady(r);
    return QRect(rada.left() - 10, rada.top() - vyskaNadpisu - 40, rada.width() + 10, vyskaNadpisu);
}

Pozadi::Nacrt nacrtTela() {
    Pozadi::Nacrt nacrt;
    nacrt.telo = QRect(QPoint(plochaNadpisu(0).left() - 90, plochaNadpisu(0).top() - 160),
                       QPoint(plochaRady(5).right() + 106, plochaRady(5).bottom() + 190));
    nacrt.sklon = 0.25; // a run starts a quarter of its width lower than the one before
    return nacrt;
}

/// Keeps the bass buttons in step with the model.
class Basy : public QObject {
public:
    Basy(QWidget* scena, const BassBoard& model, const ObsluhaBasu& obsluha, const Umisti& umisti)
        : QObject(scena), scena_(scena), model_(model) {
        umisti(new Pozadi(nacrtTela(), scena), nacrtTela().telo);
        vytvorNadpisy(umisti);
        vytvorKnofliky(obsluha, umisti);
        connect(&model, &BassBoard::basZmenen, this,
                [this](int bas) { knofliky_.at(static_cast<std::size_t>(bas))->obnov(); });
    }

private:
    void vytvorNadpisy(const Umisti& umisti) {
        for (int r = 0; r < static_cast<int>(rady.size()); ++r) {
            const Rada& rada = rady.at(static_cast<std::size_t>(r));
            auto* nadpis = new Popisek(QColor(248, 226, 184), Qt::AlignHCenter, false, scena_);
            nadpis->setObjectName(jmenoPrvku("lblRadaBasu", r));
            nadpis->setText(QString::fromUtf16(rada.nadpis));
            nadpis->setAttribute(Qt::WA_TransparentForMouseEvents, false); // its tooltip needs the mouse
            nadpis->setToolTip(QString::fromUtf16(rada.napoveda));
            nadpis->setAccessibleName(QString::fromUtf16(rada.napoveda));
            umisti(nadpis, plochaNadpisu(r));
        }
    }

    void vytvorKnofliky(const ObsluhaBasu& obsluha, const Umisti& umisti) {
        const auto obrazy = std::make_shared<ObrazyPrvku>();
        const auto ostrov = std::make_shared<OstrovFokusu>(basuVRade, 1);
        for (int bas = 1; bas <= pocetBasu; ++bas) {
            const QString nazev = obsluha.nazev ? obsluha.nazev(bas) : QString();
            auto* knoflik = new BasKnoflik(bas, nazev, model_, obrazy, scena_);
            popis(knoflik, "ImgBas", QStringLiteral("Bas"), nazev);
            pripojKlik(knoflik, obsluha.klik);
            knoflik->vlozDoOstrova(ostrov);
            const Poloha p = polohaBasu(bas);
            umisti(knoflik, QRect({p.left + 5, p.top + 4}, velikostBasu));
            knofliky_.at(static_cast<std::size_t>(bas)) = knoflik;
        }
        ostrov->vstup(knofliky_.at(prvniZastavka));
    }

    QWidget* scena_;
    const BassBoard& model_;
    std::array<BasKnoflik*, pocetBasu + 1> knofliky_{};
};

} // namespace

void vytvorBasy(QWidget* scena, const BassBoard& model, const ObsluhaBasu& obsluha, const Umisti& umisti) {
    new Basy(scena, model, obsluha, umisti);
}

} // namespace zvonika
