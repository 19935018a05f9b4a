#pragma once

#include "spreadsheet/xls/FormatError.h"

#include <QString>

#include <system_error>

namespace zvonika {

/// Why a file was not opened or saved: one Czech sentence that names the file, for the user.
QString openRefused(const QString& nativePath, xls::Refusal refusal);
QString openRefused(const QString& nativePath, std::errc error);
QString saveRefused(const QString& nativePath, const std::error_code& error);
/// The file is all right; its contents could not be put together.
QString saveRefused(const QString& nativePath);

} // namespace zvonika
