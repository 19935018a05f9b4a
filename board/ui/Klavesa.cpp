#include "board/ui/Klavesa.h"

#include "board/TrebleBoard.h"

#include <QPainter>

namespace zvonika {

Klavesa::Klavesa(int n, const TrebleBoard& model, std::shared_ptr<ObrazyPrvku> obrazy, QWidget* parent)
    : StiskaciPrvek(n, std::move(obrazy), parent), model_(model) {
    obnov();
}

void Klavesa::obnov() {
    const BarvaKlavesy barva = model_.barvaKlavesy(cislo());
    PodobaPrvku nova;
    nova.tvar = model_.nastroj().knoflik(cislo()).pulton ? TvarPrvku::CernaKlavesa : TvarPrvku::BilaKlavesa;
    if (barva == BarvaKlavesy::Cervena) nova.vyznam = VyznamPrvku::Oznaceny;
    if (barva == BarvaKlavesy::Hneda) nova.vyznam = VyznamPrvku::Interval;
    nova.tmavy = barva == BarvaKlavesy::WindowBackground;
    prevezmi(nova, barva == BarvaKlavesy::Cervena);
}

void Klavesa::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    kresliObraz(painter, rect());
    kresliZamereni(painter, QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 2);
}

} // namespace zvonika
