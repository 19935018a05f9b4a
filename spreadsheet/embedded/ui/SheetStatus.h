#pragma once

#include <QString>

namespace zvonika {

class Document;

/// What the window shows at the moment, in a few words: the grip, its column's meaning or the range selected,
/// the file's older format, and why changes are not safe from a crash.
QString statusText(const Document& document);

} // namespace zvonika
