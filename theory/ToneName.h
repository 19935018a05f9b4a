#pragma once

#include <QString>

#include <utility>

namespace zvonika {

/// A Czech tone name with octave digit and trailing comma ("e,", "fis1,", "b2,"). It wraps text as it stands:
/// a song may hold anything where a tone is expected, and nothing is corrected on the way through.
class ToneName {
public:
    ToneName() = default; ///< the empty text
    explicit ToneName(QString text) : text_(std::move(text)) {}

    /// The name of a number outside 1..49.
    static ToneName nenalezeno() { return ToneName(QStringLiteral("Nenalezeno")); }
    /// The respelling of a name that has none.
    static ToneName nejde() { return ToneName(QStringLiteral("nejde")); }

    const QString& text() const { return text_; }
    /// As a sentence says it: the comma is no part of it there.
    QString bezCarky() const { return text_.endsWith(u',') ? text_.chopped(1) : text_; }
    bool jePrazdny() const { return text_.isEmpty(); }

    friend bool operator==(const ToneName&, const ToneName&) = default;

private:
    QString text_;
};

} // namespace zvonika
