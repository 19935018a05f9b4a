#include "playing/stepping/ZobrazeniHmatu.h"

#include "board/BassBoard.h"
#include "board/BassTable.h"
#include "board/TrebleBoard.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "song/ZobrazovaciOsnova.h"
#include "theory/NazvyTonu.h"

#include <utility>

namespace zvonika {

ZobrazeniHmatu::ZobrazeniHmatu(Pisen& pisen, const PlochyHmatu& plochy, UkazPrstoklad ukazPrstoklad)
    : pisen_(pisen), list_(pisen), plochy_(plochy), ukazPrstoklad_(std::move(ukazPrstoklad)) {}

void ZobrazeniHmatu::ZobrazHmat(const VyrezPisne& vyrez) {
    const UkazanyPrstoklad prstoklad{vyrez.radek, vyrez.hmat().prstoklad};
    const bool ukazanUz = ukazanyPrstoklad_ == prstoklad;
    if (!ukazanUz) odeberPrstoklad();
    ukazHmat(vyrez);
    plochy_.panel.oznamZmenu();
    if (ukazanUz) return;
    if (vPrikazu_) ukazanyPrstoklad_ = prstoklad;
    // Last, because it may show a box: everything else of the grip is visible behind it.
    ukazPrstoklad_(zaznamPrstokladu(vyrez));
}

QString ZobrazeniHmatu::zaznamPrstokladu(const VyrezPisne& vyrez) {
    const bool jinySesit = pisen_.otevrena() && pisen_.excel().activeWorkbookName() != pisen_.aktualniPisen;
    if (!jinySesit) return vyrez.hmat().prstoklad;
    pisen_.excel().activateWindow(pisen_.aktualniPisen);
    return list_.grip(list_.aktualniRadek()).prstoklad;
}

void ZobrazeniHmatu::ukazNaStrane(bool tlak, const VyrezPisne& vyrez) {
    zobrazenTlak_ = tlak;
    ZobrazHmat(vyrez);
    list_.VyberBunkuB();
}

SmerMechu ZobrazeniHmatu::ZobrazHmatPotichu(const VyrezPisne& vyrez) {
    const SmerMechu smer = smerMechu(vyrez.hmat().smer);
    if (smer != SmerMechu::Neuveden) zobrazenTlak_ = smer == SmerMechu::Tlak;
    odeberPrstoklad();
    ukazHmat(vyrez);
    if (ZobrazeniPrstokladu::jePlatny(vyrez.hmat().prstoklad, plochy_.diskant.nastroj()))
        ukazPrstoklad_(vyrez.hmat().prstoklad);
    else
        plochy_.panel.upozorneni += QStringLiteral(" Prstoklad ve sloupci V není platný.");
    plochy_.panel.upozorneni = plochy_.panel.upozorneni.trimmed();
    plochy_.panel.oznamZmenu();
    return smer;
}

void ZobrazeniHmatu::ZobrazTexty(const VyrezPisne& vyrez) {
    ukazTexty(vyrez);
    plochy_.panel.oznamZmenu();
}

void ZobrazeniHmatu::odeberHmat() {
    uvolniObrazky();
    odeberPrstoklad();
    plochy_.osnova.vyprazdni();
    plochy_.panel.lblStrana.clear();
}

void ZobrazeniHmatu::odeberPrstoklad() {
    plochy_.diskant.vyprazdniPopisy();
    ukazanyPrstoklad_.reset();
}

void ZobrazeniHmatu::ukazHmat(const VyrezPisne& vyrez) {
    const Grip& hmat = vyrez.hmat();
    uvolniObrazky();
    const QStringList ciziTony = ukazTony(hmat.tony);
    const QStringList ciziBasy = ukazBasy(hmat.basy);
    plochy_.osnova.ukaz(hmat.tony);
    ukazTexty(vyrez);
    plochy_.panel.upozorneni = upozorneni(hmat, ciziTony, ciziBasy);
}

void ZobrazeniHmatu::ukazTexty(const VyrezPisne& vyrez) {
    SongPanel& panel = plochy_.panel;
    panel.lblTon = QString::number(vyrez.radek);
    for (int i = 0; i < static_cast<int>(panel.lblSlabika.size()); ++i) {
        const int radek = vyrez.radek - sousedu + i;
        panel.lblSlabika.at(static_cast<std::size_t>(i)) = vyrez.hmat(radek).slabika;
    }
    panel.popisyViditelne = true;
    panel.lblTony = vyrez.hmat().tony.join(u' ');
    panel.lblBasy = vyrez.hmat().basy.join(u' ');
    panel.lblStupnice = vyrez.hmat().tonina;
    panel.lblStrana = jinaStrana(smerMechu(vyrez.hmat().smer));
}

void ZobrazeniHmatu::uvolniObrazky() {
    plochy_.diskant.odeberHmat();
    plochy_.basy.odeberHmat();
}

QStringList ZobrazeniHmatu::ukazTony(const QStringList& tony) {
    QStringList cizi;
    for (const QString& ton : tony) {
        const CisloTonu cislo = cisloTonu(ToneName(ton));
        if (cislo.jeVRozsahu())
            plochy_.diskant.ukazHmat(cislo.hodnota(), zobrazenTlak_ ? StavKnofliku::Tlak : StavKnofliku::Tah);
        else
            cizi.append(ToneName(ton).bezCarky());
    }
    return cizi;
}

QStringList ZobrazeniHmatu::ukazBasy(const QStringList& basy) {
    QStringList cizi;
    for (const QString& nazev : basy) {
        const int bas = plochy_.tabulkaBasu.cislo(nazev);
        if (bas > 0)
            plochy_.basy.ukazHmat(bas, zobrazenTlak_ ? StavBasu::Tlak : StavBasu::Tah);
        else
            cizi.append(nazev);
    }
    return cizi;
}

QString ZobrazeniHmatu::jinaStrana(SmerMechu zapsany) const {
    if (zapsany == SmerMechu::Neuveden || (zapsany == SmerMechu::Tlak) == zobrazenTlak_) return {};
    return zobrazenTlak_ ? QStringLiteral("zapsáno na tah") : QStringLiteral("zapsáno na tlak");
}

QString ZobrazeniHmatu::upozorneni(const Grip& hmat, const QStringList& ciziTony,
                                   const QStringList& ciziBasy) const {
    QStringList vety;
    if (!plochy_.panel.lblStrana.isEmpty())
        vety.append(zobrazenTlak_ ? QStringLiteral("Ukázáno na tlak, zapsáno na tah (Ctrl+←).")
                                  : QStringLiteral("Ukázáno na tah, zapsáno na tlak (Ctrl+→)."));
    if (!ciziTony.isEmpty())
        vety.append(QStringLiteral("Neznámý tón v tabulce: %1.").arg(ciziTony.join(u' ')));
    if (!ciziBasy.isEmpty()) {
        vety.append(QStringLiteral("Neznámý bas v tabulce: %1.").arg(ciziBasy.join(u' ')));
        vety.append(plochy_.tabulkaBasu.chyba());
    }
    if (hmat.bezPrvnihoTonu)
        vety.append(QStringLiteral("Sloupec B je na tomto řádku prázdný: pro hledání posledního hmatu a pro "
                                   "převod tu písnička končí."));
    if (hmat.basyZaMezerou) vety.append(QStringLiteral("Basy za prázdnou buňkou se nečtou."));
    return vety.join(u' ').trimmed();
}

} // namespace zvonika
