#pragma once

#include "board/BassBoard.h"
#include "board/TrebleBoard.h"
#include "board/ui/Hmatnik.h"

#include <QString>
#include <QVector>
#include <QWidget>

#include <utility>

namespace zvonika {

/// Board, piano and basses on a scene of their own, with what their handlers were told.
struct Sestava {
    /// `meritko`: 1 is 15 twips to a pixel.
    explicit Sestava(double meritko = 1);

    template <typename T = QWidget>
    T* prvek(const char* jmeno) {
        return scena.findChild<T*>(QLatin1String(jmeno));
    }

    TrebleBoard diskant{nastrojZvonika()};
    BassBoard basy{nastrojZvonika()};
    QVector<int> kliky;
    QVector<std::pair<int, bool>> dvojkliky;
    QVector<int> klikyBasu;
    QWidget scena; // last: its children look at the models
};

} // namespace zvonika
