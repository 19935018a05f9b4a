#include "board/BassBoard.h"
#include "board/ui/BasKnoflik.h"
#include "board/ui/Hmatnik.h"
#include "board/ui/ObrazyPrvku.h"
#include "board/ui/OstrovFokusu.h"
#include "board/ui/Popisek.h"
#include "board/ui/Pozadi.h"
#include "board/ui/Skupina.h"

#include <array>
#include <vector>

namespace zvonika {

namespace {

constexpr QSize velikostBasu(590, 292); // fills its cell of 600 by 300: no gap between neighbours to miss in
constexpr int vyskaNadpisu = 255;

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

QRect plochaRady(const Nastroj& nastroj, int r) {
    const Poloha horni = nastroj.bas((r + 1) * nastroj.basuVRade).poloha;
    const Poloha dolni = nastroj.bas(r * nastroj.basuVRade + 1).poloha;
    return QRect(QPoint(horni.left, horni.top),
                 QPoint(dolni.left + velikostBasu.width(), dolni.top + velikostBasu.height()));
}

QRect plochaNadpisu(const QRect& rada) {
    return QRect(rada.left() - 10, rada.top() - vyskaNadpisu - 40, rada.width() + 10, vyskaNadpisu);
}

Pozadi::Nacrt nacrtTela(const Nastroj& nastroj) {
    const QRect prvni = plochaNadpisu(plochaRady(nastroj, 0)),
                posledni = plochaRady(nastroj, static_cast<int>(rady.size()) - 1);
    Pozadi::Nacrt nacrt;
    nacrt.telo = QRect(QPoint(prvni.left() - 90, prvni.top() - 160),
                       QPoint(posledni.right() + 106, posledni.bottom() + 190));
    nacrt.sklon = 0.25; // a run starts a quarter of its width lower than the one before
    return nacrt;
}

/// Keeps the bass buttons in step with the model.
class Basy : public QObject {
public:
    Basy(QWidget* scena, const BassBoard& model, const ObsluhaBasu& obsluha, const Umisti& umisti)
        : QObject(scena), scena_(scena), model_(model),
          knofliky_(static_cast<std::size_t>(model.nastroj().pocetBasu()) + 1) {
        const Pozadi::Nacrt nacrt = nacrtTela(model.nastroj());
        umisti(new Pozadi(nacrt, scena), nacrt.telo);
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
            umisti(nadpis, plochaNadpisu(plochaRady(model_.nastroj(), r)));
        }
    }

    void vytvorKnofliky(const ObsluhaBasu& obsluha, const Umisti& umisti) {
        const auto obrazy = std::make_shared<ObrazyPrvku>();
        const Nastroj& nastroj = model_.nastroj();
        const auto ostrov = std::make_shared<OstrovFokusu>(nastroj.basuVRade, 1);
        for (int bas = 1; bas <= nastroj.pocetBasu(); ++bas) {
            const QString nazev = obsluha.nazev ? obsluha.nazev(bas) : QString();
            auto* knoflik = new BasKnoflik(bas, nazev, model_, obrazy, scena_);
            popis(knoflik, "ImgBas", QStringLiteral("Bas"), nazev);
            pripojKlik(knoflik, obsluha.klik);
            knoflik->vlozDoOstrova(ostrov);
            const Poloha p = nastroj.bas(bas).poloha;
            umisti(knoflik, QRect({p.left + 5, p.top + 4}, velikostBasu));
            knofliky_.at(static_cast<std::size_t>(bas)) = knoflik;
        }
        ostrov->vstup(knofliky_.at(static_cast<std::size_t>(nastroj.zastavkaBasu)));
    }

    QWidget* scena_;
    const BassBoard& model_;
    std::vector<BasKnoflik*> knofliky_; ///< by number
};

} // namespace

void vytvorBasy(QWidget* scena, const BassBoard& model, const ObsluhaBasu& obsluha, const Umisti& umisti) {
    new Basy(scena, model, obsluha, umisti);
}

} // namespace zvonika
