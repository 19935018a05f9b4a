#include "board/ui/PodobaPrvku.h"

#include "theory/ui/BarvyVyznamu.h"

namespace zvonika {

namespace {

struct RadekBarev {
    BarvyPrvku svetly;
    BarvyPrvku tmavy;
};

// In the order of VyznamPrvku. Pull carries a dark mark on a light face, push a light mark on a dark one: the
// two differ in lightness too. Marks and captions keep a contrast of at least 4.5 to their face.
constexpr RadekBarev knofliky[] = {
    {{{246, 239, 224}, {58, 44, 34}}, {{52, 48, 46}, {240, 232, 216}}},
    {{{218, 42, 36}, {255, 255, 255}}, {{150, 16, 20}, {255, 255, 255}}},
    {{barvyTahu::knoflik, {14, 14, 70}}, {barvyTahu::tmavyKnoflik, {255, 255, 255}}},
    {{barvyTlaku::knoflik, {255, 255, 255}}, {barvyTlaku::tmavyKnoflik, {255, 255, 255}}},
    {{barvyIntervalu::knoflik, {44, 22, 4}}, {barvyIntervalu::tmavyKnoflik, {255, 244, 226}}},
};

} // namespace

BarvyPrvku barvyKnofliku(VyznamPrvku vyznam, bool tmavy) {
    const RadekBarev& radek = knofliky[static_cast<int>(vyznam)];
    return tmavy ? radek.tmavy : radek.svetly;
}

QColor barvaNapisu(const PodobaPrvku& podoba) {
    const BarvyPrvku barvy = barvyKnofliku(podoba.vyznam, podoba.tmavy);
    return podoba.vyznam == VyznamPrvku::Interval ? barvy.lic : barvy.znak;
}

// Nothing stands on pure red with enough contrast for every eye: the mark of a marked key is white and brings
// its own dark edge.
BarvyPrvku barvyKlavesy(VyznamPrvku vyznam, bool cerna) {
    if (vyznam == VyznamPrvku::Oznaceny) return {barvy::oznacenaKlavesa, Qt::white};
    if (vyznam == VyznamPrvku::Volny)
        return cerna ? BarvyPrvku{{30, 28, 27}, Qt::white} : BarvyPrvku{{254, 254, 252}, Qt::black};
    return barvyKnofliku(vyznam, cerna);
}

} // namespace zvonika
