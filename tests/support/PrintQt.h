#pragma once

#include <QString>

#include <ostream>

/// How a text reads in a failure message.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
