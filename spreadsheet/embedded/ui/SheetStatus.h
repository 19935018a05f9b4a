#pragma once

#include <QStringList>

namespace zvonika {

class Document;

/// What the window shows at the moment, in a few words each: why changes are not safe from a crash, the grip,
/// what its column is (`label`, "" for nothing) or the range selected, the file's older format.
QStringList statusSentences(const Document& document, const QString& label);

} // namespace zvonika
