#pragma once

#include <QString>

namespace zvonika {

class Document;

/// What the window shows at the moment, in a few words: the grip, what its column is (`label`, "" for
/// nothing) or the range selected, the file's older format, and why changes are not safe from a crash.
QString statusText(const Document& document, const QString& label);

} // namespace zvonika
