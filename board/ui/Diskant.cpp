#include "board/TrebleBoard.h"
#include "board/ui/Hmatnik.h"
#include "board/ui/KnoflikDiskantu.h"
#include "board/ui/ObrazyPrvku.h"
#include "board/ui/OstrovFokusu.h"
#include "board/ui/Popisek.h"
#include "board/ui/Pozadi.h"
#include "board/ui/Skupina.h"
#include "board/ui/Zabrana.h"

#include <array>
#include <optional>

namespace zvonika {

namespace {

constexpr int pocetRad = 5;
constexpr int pocetCisel = 32;
constexpr int stranaKlikaciPlochy = 615;
constexpr QSize velikostCisla(360, 330);
constexpr int prvniZastavka = 9; // c1: where a hand finds the board

/// The groove of a row of buttons, which its cover fills.
QRect drazkaRady(int cisloRady, bool otoceno) {
    QRect plocha;
    for (int n = 1; n <= pocetKnofliku; ++n) {
        Poloha p;
        if (rada(n) == cisloRady)
            p = polohaKnofliku(n, otoceno);
        else if (radaPomocneho(n) == cisloRady)
            p = polohaPomocneho(n, otoceno);
        else
            continue;
        plocha |= QRect(p.left, p.top, sirkaKnofliku, vyskaKnofliku);
    }
    return plocha.adjusted(15, -25, -15, 25);
}

Pozadi::Nacrt nacrtTela(bool otoceno) {
    Pozadi::Nacrt nacrt;
    nacrt.telo = QRect(QPoint(3826, 20), QPoint(7591, 10439));
    for (int r = 1; r <= pocetRad; ++r)
        nacrt.drazky.push_back(drazkaRady(r, otoceno));
    return nacrt;
}

/// Keeps the widgets of the treble board in step with the model.
class Diskant : public QObject {
public:
    Diskant(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha, const Umisti& umisti)
        : QObject(scena), scena_(scena), model_(model), umisti_(umisti),
          pozadi_(new Pozadi(nacrtTela(model.otoceno()), scena)) {
        umisti_(pozadi_, nacrtTela(model.otoceno()).telo);
        vytvorKnofliky(obsluha);
        vytvorCisla();
        vytvorZabrany();
        rozmisti();
        connect(&model, &TrebleBoard::knoflikZmenen, this, &Diskant::obnovKnoflik);
        connect(&model, &TrebleBoard::zabranyZmeneny, this, &Diskant::obnovZabrany);
        connect(&model, &TrebleBoard::cislovaniZmeneno, this, &Diskant::obnovCisla);
        connect(&model, &TrebleBoard::hmatnikOtocen, this, &Diskant::rozmisti);
    }

private:
    void vytvorKnofliky(const ObsluhaDiskantu& obsluha) {
        const auto obrazy = std::make_shared<ObrazyPrvku>();
        const auto ostrov = std::make_shared<OstrovFokusu>();
        for (int n = 1; n <= pocetKnofliku; ++n) {
            hlavni_.at(idx(n)) = vytvorKnoflik(n, false, obrazy, ostrov, obsluha);
            if (maPomocny(n)) pomocne_.at(idx(n)) = vytvorKnoflik(n, true, obrazy, ostrov, obsluha);
        }
        ostrov->vstup(hlavni_.at(idx(prvniZastavka)));
    }

    KnoflikDiskantu* vytvorKnoflik(int n, bool pomocny, const std::shared_ptr<ObrazyPrvku>& obrazy,
                                   const std::shared_ptr<OstrovFokusu>& ostrov,
                                   const ObsluhaDiskantu& obsluha) {
        auto* knoflik = new KnoflikDiskantu(n, pomocny, model_, obrazy, scena_);
        popis(knoflik, pomocny ? "lblSynchro" : "lbl",
              pomocny ? QStringLiteral("Pomocný knoflík") : QStringLiteral("Knoflík"),
              obsluha.nazev ? obsluha.nazev(n) : QString());
        pripojKlik(knoflik, obsluha.klik);
        if (obsluha.dvojklik)
            connect(knoflik, &StiskaciPrvek::dvojklik, knoflik,
                    [dvojklik = obsluha.dvojklik, n, pomocny] { dvojklik(n, pomocny); });
        knoflik->vlozDoOstrova(ostrov);
        return knoflik;
    }

    void rozmisti() {
        const bool otoceno = model_.otoceno();
        const auto umistiKnoflik = [this](KnoflikDiskantu* knoflik, Poloha p) {
            umisti_(knoflik, QRect(p.left, p.top, stranaKlikaciPlochy, stranaKlikaciPlochy));
        };
        pozadi_->prestav(nacrtTela(otoceno));
        for (int n = 1; n <= pocetKnofliku; ++n) {
            umistiKnoflik(hlavni_.at(idx(n)), polohaKnofliku(n, otoceno));
            if (maPomocny(n)) umistiKnoflik(pomocne_.at(idx(n)), polohaPomocneho(n, otoceno));
        }
        for (int r = 1; r <= pocetRad; ++r)
            umisti_(zabrany_.at(idx(r)), drazkaRady(r, otoceno));
    }

    void vytvorCisla() {
        for (int i = 0; i < pocetCisel; ++i) {
            auto* cislo = new Popisek(QColor(248, 226, 184), Qt::AlignHCenter, true, scena_);
            cislo->setObjectName(jmenoPrvku("lblCisKnofl", i));
            cisla_.at(static_cast<std::size_t>(i)) = cislo;
        }
        obnovCisla();
    }

    void vytvorZabrany() {
        for (int r = 1; r <= pocetRad; ++r) {
            auto* zabrana = new Zabrana(r, scena_);
            zabrana->setObjectName(jmenoPrvku("cmdZabrana", r));
            zabrany_.at(idx(r)) = zabrana;
        }
        obnovZabrany();
    }

    void obnovKnoflik(int n) {
        hlavni_.at(idx(n))->obnov();
        if (KnoflikDiskantu* pomocny = pomocne_.at(idx(n))) pomocny->obnov();
    }

    void obnovZabrany() {
        for (int r = 1; r <= pocetRad; ++r)
            zabrany_.at(idx(r))->setVisible(model_.zakryta(r));
    }

    void obnovCisla() {
        const bool prelozit = !umistenaObracene_ || *umistenaObracene_ != model_.obraceneCislovani();
        umistenaObracene_ = model_.obraceneCislovani();
        for (int i = 0; i < pocetCisel; ++i) {
            Popisek* cislo = cisla_.at(static_cast<std::size_t>(i));
            const Poloha p = polohaCisla(i, *umistenaObracene_);
            if (prelozit) umisti_(cislo, QRect({p.left, p.top}, velikostCisla));
            cislo->setText(model_.popisCisla(i));
            cislo->setVisible(model_.cisloViditelne(i));
        }
    }

    static std::size_t idx(int n) { return static_cast<std::size_t>(n); }

    QWidget* scena_;
    const TrebleBoard& model_;
    Umisti umisti_;
    Pozadi* pozadi_;
    std::array<KnoflikDiskantu*, pocetKnofliku + 1> hlavni_{};
    std::array<KnoflikDiskantu*, pocetKnofliku + 1> pomocne_{};
    std::array<Popisek*, pocetCisel> cisla_{};
    std::array<Zabrana*, pocetRad + 1> zabrany_{};
    std::optional<bool> umistenaObracene_;
};

} // namespace

void vytvorDiskant(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha,
                   const Umisti& umisti) {
    new Diskant(scena, model, obsluha, umisti);
}

} // namespace zvonika
