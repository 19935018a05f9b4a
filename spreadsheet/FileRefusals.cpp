#include "spreadsheet/FileRefusals.h"

#include "platform/ShownText.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

struct SaveReason {
    std::errc error;
    const char16_t* text;
};

constexpr SaveReason saveReasons[] = {
    {std::errc::filename_too_long, u"jeho jméno je příliš dlouhé"},
    {std::errc::illegal_byte_sequence, u"v jeho jménu je znak, který tam být nesmí"},
    {std::errc::invalid_argument, u"v jeho jménu je znak, který tam být nesmí"},
    {std::errc::permission_denied, reason::mayNotWrite},
    {std::errc::operation_not_permitted, reason::mayNotWrite},
    {std::errc::read_only_file_system, reason::readOnlyDisk},
    {std::errc::no_space_on_device, reason::diskFull},
    {std::errc::file_too_large, reason::diskFull},
    {std::errc::not_enough_memory, u"nestačí paměť počítače"},
    {std::errc::is_a_directory, reason::isFolder},
    {std::errc::text_file_busy, reason::openElsewhere},
    {std::errc::state_not_recoverable,
     u"disk ho uprostřed výměny přestal vydávat; jeho dosavadní podoba se vrátí na místo při příštím startu"},
    {std::errc::no_such_device, u"pod tímto jménem není obyčejný soubor"},
    {std::errc::too_many_symbolic_link_levels, u"odkaz, který na něj vede, nikam nevede"},
};

} // namespace

QString cannotOpen(const QString& nativePath, QStringView reason) {
    return QStringLiteral("Soubor „%1“ nelze otevřít: %2.").arg(shownFileName(nativePath), reason);
}

QString cannotSave(const QString& nativePath, QStringView reason) {
    return QStringLiteral("Soubor „%1“ nelze uložit: %2.").arg(shownFileName(nativePath), reason);
}

QString reason::folderMissing(const QString& nativePath) {
    return QStringLiteral("složka „%1“ neexistuje")
        .arg(shownName(QDir::toNativeSeparators(QFileInfo(nativePath).absolutePath())));
}

QString reason::ofDisk(const std::error_code& error) {
    for (const auto& known : saveReasons)
        if (error == known.error) return QString::fromUtf16(known.text);
#ifdef Q_OS_UNIX
    if (error == std::error_code(EDQUOT, std::generic_category()))
        return QString::fromUtf16(reason::diskFull);
#endif
    return QStringLiteral("při zápisu na disk nastala chyba %1").arg(error.value());
}

} // namespace zvonika
