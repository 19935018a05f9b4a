#pragma once

#include <QString>

#include <utility>

namespace zvonika {

/// The name of a key ("G dur"). It wraps text as it stands: a key may be "", "C Dur" or "Vyberte tóninu".
class Key {
public:
    Key() = default; ///< the empty text
    explicit Key(QString text) : text_(std::move(text)) {}

    /// No key chosen; also the idle caption of the key button.
    static Key vyberteToninu() { return Key(QStringLiteral("Vyberte tóninu")); }

    const QString& text() const { return text_; }

    friend bool operator==(const Key&, const Key&) = default;

private:
    QString text_;
};

} // namespace zvonika
