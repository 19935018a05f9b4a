#pragma once

#include "aids/ui/Prohlizec.h"

#include <QObject>

namespace zvonika {

/// The root of the plug-in. Made after the QApplication, on its thread.
class TovarnaWebu : public QObject, public TovarnaProhlizece {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zvonika.TovarnaProhlizece/1")
    Q_INTERFACES(zvonika::TovarnaProhlizece)
public:
    TovarnaWebu();
    Prohlizec* vytvor(const MistoProhlizece& misto) override;
};

} // namespace zvonika
