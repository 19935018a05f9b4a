#pragma once

#include "board/ui/StiskaciPrvek.h"

namespace zvonika {

class TrebleBoard;

/// Piano key `cmdKlavesa(n)`; it takes its colour from the model, which must outlive it.
class Klavesa : public StiskaciPrvek {
    Q_OBJECT
public:
    Klavesa(int n, const TrebleBoard& model, std::shared_ptr<ObrazyPrvku> obrazy, QWidget* parent);

    /// Takes over the colour from the model and repaints if it changed.
    void obnov();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const TrebleBoard& model_;
};

} // namespace zvonika
