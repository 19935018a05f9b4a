#pragma once

#include <QIcon>

namespace zvonika {

/// The program's icon: three rows of accordion buttons, one of them pressed. Drawn at every size asked for.
QIcon ikonaProgramu();

} // namespace zvonika
