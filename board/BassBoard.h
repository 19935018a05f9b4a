#pragma once

#include "board/TrebleLayout.h"

#include <QObject>

#include <array>

namespace zvonika {

enum class StavBasu { Volny, Cerveny, Tah, Tlak };

/// Free picture of a bass button: 26 and 34 are hatched, 30 is the C bass, as their tactile marks are felt.
enum class ObrazBasu { Bezny, Mriz, C };
ObrazBasu obrazBasu(int bas);

/// The 120 bass buttons: marks (`ImgBas(n).Tag`) and pictures.
class BassBoard : public QObject {
    Q_OBJECT
public:
    explicit BassBoard(QObject* parent = nullptr);

    bool oznacen(int bas) const;
    void nastavZnacku(int bas, bool oznacen);
    StavBasu stav(int bas) const;
    void ukaz(int bas, StavBasu stav);

    /// Toggles mark and picture, as a click does.
    void klik(int bas);
    /// All marks and pictures released.
    void uvolniBasy();

Q_SIGNALS:
    void basZmenen(int bas);

private:
    struct Bas {
        bool oznacen = false;
        StavBasu stav = StavBasu::Volny;
    };
    std::array<Bas, pocetBasu + 1> basy_;
};

} // namespace zvonika
