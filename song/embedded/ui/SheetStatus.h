#pragma once

#include <QString>

namespace zvonika {

class Document;

/// What the window shows at the moment, in a few words: the grip, its column's meaning or the range selected,
/// and the file's older format.
QString statusText(const Document& document);

} // namespace zvonika
