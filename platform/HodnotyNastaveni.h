#pragma once

#include <QString>

#include <cstdint>

namespace zvonika {

/// A settings text as a byte, rounded to even as the classic conversion does. RuntimeError 13 when it is no
/// number, 6 when it does not fit 0..255.
std::uint8_t naBajt(const QString& text);

/// A settings text as a truth value: any number but 0, or "True"/"False". RuntimeError 13 for anything else.
bool naPravdu(const QString& text);

} // namespace zvonika
