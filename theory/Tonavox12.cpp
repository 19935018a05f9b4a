#include "theory/Tonavox12.h"

#include "theory/PojmenovaniStupnice.h"
#include "theory/Stupne.h"
#include "theory/Toniny.h"

#include <QHash>

#include <algorithm>

namespace zvonika {

namespace {

QString jmenoSOktavou(QStringView jmeno, int oktava) {
    QString vysledek = jmeno.toString();
    if (oktava > 0) vysledek += QString::number(oktava);
    return vysledek + u',';
}

int oktavaPsaneNoty(CisloTonu cislo, QStringView jmeno) {
    const int oktava = (cislo.hodnota() - cisloMalehoC) / pultonuVOktave;
    // The digit belongs to the written letter, and c is where the next octave begins.
    return jmeno == u"ces" ? oktava + 1 : oktava;
}

QHash<QString, int> sestavCislaTonu() {
    QHash<QString, int> cisla;
    const auto pridej = [&](QStringView jmeno, int oktava, int pultony) {
        const CisloTonu cislo(cisloMalehoC + pultonuVOktave * oktava + pultony);
        if (cislo.jeVRozsahu()) cisla.insert(jmenoSOktavou(jmeno, oktava), cislo.hodnota());
    };
    for (int oktava = 0; oktava <= 4; ++oktava) {
        for (const Stupen& stupen : stupne) {
            pridej(stupen.prirozeny, oktava, stupen.pultony);
            pridej(stupen.skrizkem, oktava, stupen.pultony + 1);
            pridej(stupen.sbeckem, oktava, stupen.pultony - 1);
        }
    }
    return cisla;
}

} // namespace

void Tonavox12::DejTon(CisloTonu cislo) {
    mimoStupnici_ = false;
    DejTonVTonine(chromatickePojmenovani, cislo);
}

void Tonavox12::DejTonVeStupnici(CisloTonu cislo, QString& stupnice) {
    mimoStupnici_ = false;
    stupnice = normalizujStupnici(stupnice);
    const auto nalezena =
        std::find_if(pojmenovaniStupnic.begin(), pojmenovaniStupnic.end(),
                     [&](const auto& pojmenovani) { return pojmenovani.stupnice == stupnice; });
    if (nalezena == pojmenovaniStupnic.end())
        DejTon(cislo);
    else
        DejTonVTonine(*nalezena, cislo);
}

void Tonavox12::DejCisloTonu(const ToneName& nazev) {
    static const QHash<QString, int> cisla = sestavCislaTonu();
    ton_ = CisloTonu(cisla.value(nazev.text(), CisloTonu::neznamy().hodnota()));
}

ToneName Tonavox12::nazevTonu() const {
    const auto* nazev = std::get_if<ToneName>(&ton_);
    return nazev ? *nazev : ToneName();
}

CisloTonu Tonavox12::cisloTonu() const {
    const auto* cislo = std::get_if<CisloTonu>(&ton_);
    return cislo ? *cislo : CisloTonu::neznamy();
}

void Tonavox12::DejTonVTonine(const PojmenovaniStupnice& pojmenovani, CisloTonu cislo) {
    if (!cislo.jeVRozsahu()) {
        ton_ = ToneName::nenalezeno();
        return;
    }
    QStringView jmeno = pojmenovani.nazvy[static_cast<std::size_t>(cislo.hodnota() - 1) % pultonuVOktave];
    mimoStupnici_ = jmeno.endsWith(u'*');
    if (mimoStupnici_) jmeno.chop(1);
    if (cislo.hodnota() == CisloTonu::nejvyssi && !pojmenovani.nejvyssiTon.isEmpty())
        ton_ = ToneName(pojmenovani.nejvyssiTon.toString());
    else
        ton_ = ToneName(jmenoSOktavou(jmeno, oktavaPsaneNoty(cislo, jmeno)));
}

} // namespace zvonika
