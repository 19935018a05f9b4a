#include "theory/ui/OsnovaPainter.h"

#include "theory/ui/BarvyVyznamu.h"
#include "theory/ui/Znacky.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace zvonika {

namespace {

constexpr double presahPomocneLinky = 0.95; ///< from the middle of a head
constexpr int g1 = 660;

double krokPredznamenani(Znamenko druh) {
    return druh == Znamenko::Krizek ? 0.98 : 0.86;
}

} // namespace

const QPainterPath* znackaZnamenka(Znamenko znamenko) {
    switch (znamenko) {
    case Znamenko::Krizek:
        return &znacky::krizek();
    case Znamenko::Becko:
        return &znacky::becko();
    case Znamenko::Odrazka:
        return &znacky::odrazka();
    case Znamenko::Zadne:
        break;
    }
    return nullptr;
}

double OsnovaPainter::sirkaPredznamenani(const Predznamenani& predznamenani) {
    return predznamenani.pocet() * krokPredznamenani(predznamenani.druh());
}

OsnovaPainter::OsnovaPainter(QPainter& painter, const MirkaOsnovy& mirka)
    : painter_(painter), mirka_(mirka), dpr_(painter.device()->devicePixelRatioF()) {
    painter_.setRenderHint(QPainter::Antialiasing);
}

void OsnovaPainter::linky(double vlevo, double vpravo) {
    for (int linka = MirkaOsnovy::e1; linka <= MirkaOsnovy::f2; linka += MirkaOsnovy::jednotekNaMezeru)
        vodorovna(vlevo, vpravo, linka, barvyOsnovy::linka, 0.1);
}

void OsnovaPainter::klic(double vlevo) {
    znacka(znacky::houslovyKlic(), vlevo, mirka_.y(g1), barvyOsnovy::inkoust);
}

void OsnovaPainter::predznamenani(double vlevo, const Predznamenani& predznamenani) {
    const QPainterPath* druh = znackaZnamenka(predznamenani.druh());
    const double krok = krokPredznamenani(predznamenani.druh()) * mirka_.mezera;
    for (int i = 0; i < predznamenani.pocet(); ++i)
        znacka(*druh, vlevo + i * krok, mirka_.y(predznamenani.jednotky(i)), barvyOsnovy::inkoust);
}

void OsnovaPainter::akord(double x, const RozvrzeniAkordu& akord, const QColor& barva, double zmenseni) {
    const double krok = mirka_.mezera * zmenseni;
    pomocneLinky(x, akord, barva, zmenseni);
    for (const MistoNoty& nota : akord.noty) {
        const double y = mirka_.y(nota.poloha.jednotky);
        const QColor& inkoust = nota.interval ? barvyIntervalu::nota : barva;
        znacka(nota.interval ? znacky::ctverec() : znacky::hlavicka(), x + nota.hlavicka * krok, y, inkoust,
               zmenseni);
        if (const QPainterPath* znamenko = znackaZnamenka(nota.poloha.znamenko))
            znacka(*znamenko, x + nota.znamenko * krok, y, inkoust, zmenseni);
    }
}

void OsnovaPainter::akordDoMista(double vlevo, double vpravo, const RozvrzeniAkordu& rozvrzeni,
                                 const QColor& barva) {
    if (rozvrzeni.noty.isEmpty()) return;
    const double zmenseni = std::min(1.0, (vpravo - vlevo) / (rozvrzeni.sirka() * mirka_.mezera));
    const double stred = (rozvrzeni.vlevo + rozvrzeni.vpravo) / 2 * mirka_.mezera * zmenseni;
    akord((vlevo + vpravo) / 2 - stred, rozvrzeni, barva, zmenseni);
}

void OsnovaPainter::papir(QPainter& painter, const QRectF& misto) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(barvyOsnovy::okraj, 1));
    painter.setBrush(barvyOsnovy::papir);
    painter.drawRoundedRect(misto.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.restore();
}

void OsnovaPainter::znacka(const QPainterPath& znacka, double x, double y, const QColor& barva,
                           double zmenseni) {
    painter_.save();
    painter_.translate(x, y);
    painter_.scale(mirka_.mezera * zmenseni, mirka_.mezera * zmenseni);
    painter_.fillPath(znacka, barva);
    painter_.restore();
}

void OsnovaPainter::vodorovna(double vlevo, double vpravo, int jednotky, const QColor& barva,
                              double tloustka) {
    // On whole device pixels, or one line would look bolder than the next.
    const double vyska = std::max(1.0, std::round(tloustka * mirka_.mezera * dpr_)) / dpr_;
    const double y = std::round((mirka_.y(jednotky) - vyska / 2) * dpr_) / dpr_;
    painter_.fillRect(QRectF(vlevo, y, vpravo - vlevo, vyska), barva);
}

void OsnovaPainter::pomocneLinky(double x, const RozvrzeniAkordu& akord, const QColor& barva,
                                 double zmenseni) {
    const auto linka = [&](int jednotky, auto zaLinkou) {
        double vlevo = 0, vpravo = 0;
        bool potrebna = false;
        for (const MistoNoty& nota : akord.noty) {
            if (!zaLinkou(nota.poloha.jednotky)) continue;
            vlevo = potrebna ? std::min(vlevo, nota.hlavicka) : nota.hlavicka;
            vpravo = potrebna ? std::max(vpravo, nota.hlavicka) : nota.hlavicka;
            potrebna = true;
        }
        const double krok = mirka_.mezera * zmenseni;
        if (potrebna)
            vodorovna(x + (vlevo - presahPomocneLinky) * krok, x + (vpravo + presahPomocneLinky) * krok,
                      jednotky, barva, 0.1);
    };
    for (int l = MirkaOsnovy::f2 + MirkaOsnovy::jednotekNaMezeru; l <= MirkaOsnovy::nejvyssi;
         l += MirkaOsnovy::jednotekNaMezeru)
        linka(l, [l](int jednotky) { return jednotky >= l; });
    for (int l = MirkaOsnovy::e1 - MirkaOsnovy::jednotekNaMezeru; l >= MirkaOsnovy::nejnizsi;
         l -= MirkaOsnovy::jednotekNaMezeru)
        linka(l, [l](int jednotky) { return jednotky <= l; });
}

} // namespace zvonika
