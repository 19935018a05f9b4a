#pragma once

#include "theory/Key.h"

#include <QObject>

namespace zvonika {

/// The program's current key: the caption of `cmdStupnice`.
class Tonina : public QObject {
    Q_OBJECT
public:
    explicit Tonina(QObject* parent = nullptr);

    /// "Vyberte tóninu" while no key is chosen; may be empty.
    const Key& stupnice() const { return stupnice_; }
    void nastavStupnici(const Key& stupnice);

Q_SIGNALS:
    void changed();

private:
    Key stupnice_ = Key::vyberteToninu();
};

} // namespace zvonika
