#pragma once

#include "board/ui/Napis.h"
#include "board/ui/StiskaciPrvek.h"

namespace zvonika {

class BassBoard;

/// Bass button `ImgBas(n)`, a pill that carries the tone of its bass or the root of its chord. The model must
/// outlive it.
class BasKnoflik : public StiskaciPrvek {
    Q_OBJECT
public:
    BasKnoflik(int n, const QString& nazev, const BassBoard& model, std::shared_ptr<ObrazyPrvku> obrazy,
               QWidget* parent);

    /// Takes over picture and mark from the model and repaints if they changed.
    void obnov();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const BassBoard& model_;
    Napis napis_;
};

} // namespace zvonika
