#include "board/TrebleBoard.h"
#include "board/ui/Hmatnik.h"
#include "board/ui/KnoflikDiskantu.h"
#include "board/ui/ObrazyPrvku.h"
#include "board/ui/OstrovFokusu.h"
#include "board/ui/Popisek.h"
#include "board/ui/Pozadi.h"
#include "board/ui/Skupina.h"
#include "board/ui/Zabrana.h"

#include <optional>
#include <vector>

namespace zvonika {

namespace {

constexpr QSize velikostCisla(360, 330);

/// The groove of a row of buttons, which its cover fills.
QRect drazkaRady(const Nastroj& nastroj, int rada, bool otoceno) {
    QRect plocha;
    const auto pridej = [&](const Nastroj::Misto& misto) {
        const Poloha p = misto.kde(otoceno);
        if (misto.rada == rada) plocha |= QRect(p.left, p.top, nastroj.sirkaKnofliku, nastroj.vyskaKnofliku);
    };
    for (const Nastroj::Knoflik& knoflik : nastroj.knofliky) {
        pridej(knoflik.hlavni);
        if (knoflik.pomocny) pridej(*knoflik.pomocny);
    }
    return plocha.adjusted(15, -25, -15, 25);
}

Pozadi::Nacrt nacrtTela(const Nastroj& nastroj, bool otoceno) {
    Pozadi::Nacrt nacrt;
    nacrt.telo = QRect(QPoint(3826, 20), QPoint(7591, 10439));
    for (int r = 1; r <= nastroj.pocetRad; ++r)
        nacrt.drazky.push_back(drazkaRady(nastroj, r, otoceno));
    return nacrt;
}

/// Keeps the widgets of the treble board in step with the model.
class Diskant : public QObject {
public:
    Diskant(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha, const Umisti& umisti)
        : QObject(scena), scena_(scena), model_(model), nastroj_(model.nastroj()), umisti_(umisti),
          pozadi_(new Pozadi(nacrtTela(nastroj_, model.otoceno()), scena)),
          hlavni_(nastroj_.knofliky.size() + 1), pomocne_(hlavni_.size()), cisla_(nastroj_.cisla.size()),
          zabrany_(idx(nastroj_.pocetRad) + 1) {
        umisti_(pozadi_, nacrtTela(nastroj_, model.otoceno()).telo);
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
        for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
            hlavni_.at(idx(n)) = vytvorKnoflik(n, false, obrazy, ostrov, obsluha);
            if (nastroj_.knoflik(n).pomocny)
                pomocne_.at(idx(n)) = vytvorKnoflik(n, true, obrazy, ostrov, obsluha);
        }
        ostrov->vstup(hlavni_.at(idx(nastroj_.zastavkaDiskantu)));
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
        const auto umistiKnoflik = [&](KnoflikDiskantu* knoflik, const Nastroj::Misto& misto) {
            const Poloha p = misto.kde(otoceno);
            umisti_(knoflik, QRect(p.left, p.top, nastroj_.klikaciPlocha, nastroj_.klikaciPlocha));
        };
        pozadi_->prestav(nacrtTela(nastroj_, otoceno));
        for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
            umistiKnoflik(hlavni_.at(idx(n)), nastroj_.knoflik(n).hlavni);
            if (const auto& misto = nastroj_.knoflik(n).pomocny) umistiKnoflik(pomocne_.at(idx(n)), *misto);
        }
        for (int r = 1; r <= nastroj_.pocetRad; ++r)
            umisti_(zabrany_.at(idx(r)), drazkaRady(nastroj_, r, otoceno));
    }

    void vytvorCisla() {
        for (int i = 0; i < nastroj_.pocetCisel(); ++i) {
            auto* cislo = new Popisek(QColor(248, 226, 184), Qt::AlignHCenter, true, scena_);
            cislo->setObjectName(jmenoPrvku("lblCisKnofl", i));
            cisla_.at(static_cast<std::size_t>(i)) = cislo;
        }
        obnovCisla();
    }

    void vytvorZabrany() {
        for (int r = 1; r <= nastroj_.pocetRad; ++r) {
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
        for (int r = 1; r <= nastroj_.pocetRad; ++r)
            zabrany_.at(idx(r))->setVisible(model_.zakryta(r));
    }

    void obnovCisla() {
        const bool prelozit = !umistenaObracene_ || *umistenaObracene_ != model_.obraceneCislovani();
        umistenaObracene_ = model_.obraceneCislovani();
        for (int i = 0; i < nastroj_.pocetCisel(); ++i) {
            Popisek* cislo = cisla_.at(static_cast<std::size_t>(i));
            const Nastroj::Cislo& misto = nastroj_.cislo(i);
            const Poloha p = *umistenaObracene_ ? misto.obracena : misto.poloha;
            if (prelozit) umisti_(cislo, QRect({p.left, p.top}, velikostCisla));
            cislo->setText(model_.popisCisla(i));
            cislo->setVisible(model_.cisloViditelne(i));
        }
    }

    static std::size_t idx(int n) { return static_cast<std::size_t>(n); }

    QWidget* scena_;
    const TrebleBoard& model_;
    const Nastroj& nastroj_;
    Umisti umisti_;
    Pozadi* pozadi_;
    std::vector<KnoflikDiskantu*> hlavni_, pomocne_; ///< by number
    std::vector<Popisek*> cisla_;
    std::vector<Zabrana*> zabrany_;
    std::optional<bool> umistenaObracene_;
};

} // namespace

void vytvorDiskant(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha,
                   const Umisti& umisti) {
    new Diskant(scena, model, obsluha, umisti);
}

} // namespace zvonika
