#pragma once

#include "aids/WebSandbox.h"
#include "aids/ui/Prohlizec.h"

#include <QStringList>

namespace zvonika {

/// Makes browser controls: real ones from the plug-in with the web engine, which is loaded with the first
/// one; where it is not installed or must not be started, the lighter view. `slozky`: native folders in which
/// the plug-in is looked for, in this order.
TvurceProhlizece volbaProhlizece(const QStringList& slozky, WebSandbox (*piskoviste)() = webSandbox);

/// The lighter view alone, without a reason given.
TvurceProhlizece jednoduchyProhlizec();

} // namespace zvonika
