#include "board/TrebleBoard.h"
#include "board/ui/Hmatnik.h"
#include "board/ui/Klavesa.h"
#include "board/ui/ObrazyPrvku.h"
#include "board/ui/OstrovFokusu.h"
#include "board/ui/Popisek.h"
#include "board/ui/Skupina.h"

#include <vector>

namespace zvonika {

namespace {

constexpr int sirkaTonuPultonu = 470; // up to the keys, less a hair's breadth
constexpr int sirkaTonuPrirozene = 600;

/// Keeps keys and their labels in step with the model.
class Klaviatura : public QObject {
public:
    Klaviatura(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha, const Umisti& umisti)
        : QObject(scena), scena_(scena), model_(model), nastroj_(model.nastroj()), umisti_(umisti),
          klavesy_(nastroj_.klavesy.size() + 1), tony_(klavesy_.size()) {
        const auto ostrov = std::make_shared<OstrovFokusu>(1, 1);
        vytvorKlavesy(obsluha);
        for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
            klavesy_.at(idx(n))->vlozDoOstrova(ostrov);
            vytvorTon(n);
        }
        ostrov->vstup(klavesy_.at(idx(nastroj_.zastavkaDiskantu)));
        connect(&model, &TrebleBoard::klavesaZmenena, this, [this](int n) {
            klavesy_.at(idx(n))->obnov();
            tony_.at(idx(n))->setText(model_.tonKlavesy(n));
        });
    }

private:
    // Accidentals lie on top of the naturals, so they come later.
    void vytvorKlavesy(const ObsluhaDiskantu& obsluha) {
        const auto obrazy = std::make_shared<ObrazyPrvku>();
        for (const bool pulton : {false, true})
            for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n)
                if (nastroj_.knoflik(n).pulton == pulton) vytvorKlavesu(n, obrazy, obsluha);
    }

    void vytvorKlavesu(int n, const std::shared_ptr<ObrazyPrvku>& obrazy, const ObsluhaDiskantu& obsluha) {
        auto* klavesa = new Klavesa(n, model_, obrazy, scena_);
        popis(klavesa, "cmdKlavesa", QStringLiteral("Klávesa"), obsluha.nazev ? obsluha.nazev(n) : QString());
        pripojKlik(klavesa, obsluha.klik);
        const Nastroj::Klavesa& k = nastroj_.klavesa(n);
        umisti_(klavesa, QRect(k.poloha.left, k.poloha.top, k.sirka, k.vyska));
        klavesy_.at(idx(n)) = klavesa;
    }

    void vytvorTon(int n) {
        const bool pulton = nastroj_.knoflik(n).pulton;
        auto* ton = new Popisek(barvy::oznaceni, pulton ? Qt::AlignRight : Qt::AlignLeft, true, scena_);
        ton->setObjectName(jmenoPrvku("lblTonKlav", n));
        ton->setText(model_.tonKlavesy(n));
        const Poloha p = nastroj_.klavesa(n).ton;
        const int sirka = pulton ? sirkaTonuPultonu : sirkaTonuPrirozene;
        umisti_(ton, QRect(p.left, p.top, sirka, nastroj_.klavesa(n).vyska));
        tony_.at(idx(n)) = ton;
    }

    static std::size_t idx(int n) { return static_cast<std::size_t>(n); }

    QWidget* scena_;
    const TrebleBoard& model_;
    const Nastroj& nastroj_;
    Umisti umisti_;
    std::vector<Klavesa*> klavesy_; ///< by number, as the labels
    std::vector<Popisek*> tony_;
};

} // namespace

void vytvorKlaviaturu(QWidget* scena, const TrebleBoard& model, const ObsluhaDiskantu& obsluha,
                      const Umisti& umisti) {
    new Klaviatura(scena, model, obsluha, umisti);
}

} // namespace zvonika
