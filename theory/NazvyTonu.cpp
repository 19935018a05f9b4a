#include "theory/NazvyTonu.h"

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

const PojmenovaniStupnice& pojmenovaniVeStupnici(const Key& stupnice) {
    const QString hledana = normalizujStupnici(stupnice.text());
    const auto nalezene =
        std::find_if(pojmenovaniStupnic.begin(), pojmenovaniStupnic.end(),
                     [&](const auto& pojmenovani) { return pojmenovani.stupnice == hledana; });
    return nalezene == pojmenovaniStupnic.end() ? chromatickePojmenovani : *nalezene;
}

PojmenovanyTon pojmenuj(CisloTonu ton, const PojmenovaniStupnice& pojmenovani) {
    if (!ton.jeVRozsahu()) return {ToneName::nenalezeno()};
    QStringView jmeno = pojmenovani.nazvy[static_cast<std::size_t>(ton.hodnota() - 1) % pultonuVOktave];
    const bool mimoStupnici = jmeno.endsWith(u'*');
    if (mimoStupnici) jmeno.chop(1);
    if (ton.hodnota() == CisloTonu::nejvyssi && !pojmenovani.nejvyssiTon.isEmpty())
        return {ToneName(pojmenovani.nejvyssiTon.toString()), mimoStupnici};
    return {ToneName(jmenoSOktavou(jmeno, oktavaPsaneNoty(ton, jmeno))), mimoStupnici};
}

} // namespace

ToneName nazevTonu(CisloTonu ton) {
    return pojmenuj(ton, chromatickePojmenovani).nazev;
}

PojmenovanyTon nazevTonu(CisloTonu ton, const Key& stupnice) {
    return pojmenuj(ton, pojmenovaniVeStupnici(stupnice));
}

CisloTonu cisloTonu(const ToneName& nazev) {
    static const QHash<QString, int> cisla = sestavCislaTonu();
    return CisloTonu(cisla.value(nazev.text(), CisloTonu::neznamy().hodnota()));
}

} // namespace zvonika
