#pragma once

#include <QString>

namespace zvonika {

/// The name of the user for locks, which lie where others read them; "" where the owner of a file tells it.
QString userOfFiles();

} // namespace zvonika
