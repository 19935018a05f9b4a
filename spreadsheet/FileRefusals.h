#pragma once

#include <QString>

#include <system_error>

namespace zvonika {

// Why a workbook's file was not opened or saved: one Czech sentence that names the file without its folder.

QString cannotOpen(const QString& nativePath, QStringView reason);
QString cannotSave(const QString& nativePath, QStringView reason);

/// Reasons that every spreadsheet gives with the same words.
namespace reason {
inline constexpr char16_t missing[] = u"neexistuje";
inline constexpr char16_t notXls[] = u"není to sešit ve formátu .xls";
inline constexpr char16_t damaged[] = u"je poškozený";
inline constexpr char16_t mayNotWrite[] = u"nemáte oprávnění k zápisu";
inline constexpr char16_t readOnlyDisk[] = u"disk je jen pro čtení";
inline constexpr char16_t diskFull[] = u"na disku není dost místa";
inline constexpr char16_t openElsewhere[] = u"má ho otevřený jiný program";
inline constexpr char16_t isFolder[] = u"pod tímto jménem je na disku složka";
QString folderMissing(const QString& nativePath); ///< names the folder of this file
QString ofDisk(const std::error_code& error);     ///< why the system refuses to write
} // namespace reason

} // namespace zvonika
