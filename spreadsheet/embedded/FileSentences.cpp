#include "spreadsheet/embedded/FileSentences.h"

#include "spreadsheet/FileRefusals.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

QString folder(const QString& nativePath) {
    return QDir::toNativeSeparators(QFileInfo(nativePath).absolutePath());
}

const QString saveAsXls = QStringLiteral("; uložte ho v programu, který ho vytvořil, jako sešit .xls");

QString contentsReason(xls::Refusal refusal) {
    switch (refusal) {
    case xls::Refusal::Empty:
        return QStringLiteral("je prázdný");
    case xls::Refusal::NotXls:
        return QString::fromUtf16(reason::notXls);
    case xls::Refusal::Xlsx:
        return QStringLiteral("podle obsahu je to sešit v novějším formátu .xlsx") + saveAsXls;
    case xls::Refusal::OpenDocument:
        return QStringLiteral("podle obsahu je to sešit ve formátu OpenDocument (.ods)") + saveAsXls;
    case xls::Refusal::Html:
        return QStringLiteral("podle obsahu je to webová stránka (HTML)") + saveAsXls;
    case xls::Refusal::Xml2003:
        return QStringLiteral("podle obsahu je to tabulka XML 2003") + saveAsXls;
    case xls::Refusal::PlainText:
        return QStringLiteral("podle obsahu je to prostý text (CSV)") + saveAsXls;
    case xls::Refusal::OtherFormat:
        return QStringLiteral("podle obsahu je to jiný formát než .xls");
    case xls::Refusal::Encrypted:
        return QStringLiteral(
            "je zašifrován: má heslo, nebo zamčenou strukturu sešitu, s níž ho některé "
            "programy zašifrují samy; heslo nebo zámek zrušte v programu, který ho vytvořil");
    case xls::Refusal::OldFormat:
        return QStringLiteral("je v příliš starém formátu");
    case xls::Refusal::CodePage:
        return QStringLiteral("texty jsou v něm ve znakové sadě, kterou tabulka nezná; uložte ho v programu, "
                              "který ho vytvořil, v dnešním formátu .xls");
    case xls::Refusal::Truncated:
        return QStringLiteral("není celý, jeho konec chybí");
    case xls::Refusal::Damaged:
        break;
    }
    return QString::fromUtf16(reason::damaged);
}

QString openReason(std::errc error) {
    switch (error) {
    case std::errc::no_such_file_or_directory:
        return QString::fromUtf16(reason::missing);
    case std::errc::is_a_directory:
        return QStringLiteral("je to složka");
    case std::errc::no_such_device:
        return QStringLiteral("není to obyčejný soubor");
    case std::errc::permission_denied:
        return QStringLiteral("nemáte oprávnění ho číst");
    case std::errc::file_too_large:
        return QStringLiteral("je příliš velký");
    case std::errc::not_enough_memory:
        return QStringLiteral("nestačí paměť počítače");
    default:
        return QStringLiteral("při čtení z disku nastala chyba");
    }
}

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
    {std::errc::no_such_device, u"pod tímto jménem není obyčejný soubor"},
    {std::errc::too_many_symbolic_link_levels, u"odkaz, který na něj vede, nikam nevede"},
};

QString diskReason(const std::error_code& error) {
    for (const auto& known : saveReasons)
        if (error == known.error) return QString::fromUtf16(known.text);
#ifdef Q_OS_UNIX
    if (error == std::error_code(EDQUOT, std::generic_category()))
        return QString::fromUtf16(reason::diskFull);
#endif
    return QStringLiteral("při zápisu na disk nastala chyba %1").arg(error.value());
}

QString saveReason(const QString& nativePath, const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory) return reason::folderMissing(nativePath);
    if (error == std::errc::not_a_directory)
        return QStringLiteral("„%1“ není složka").arg(folder(nativePath));
    return diskReason(error);
}

} // namespace

QString openRefused(const QString& nativePath, xls::Refusal refusal) {
    return cannotOpen(nativePath, contentsReason(refusal));
}

QString openRefused(const QString& nativePath, std::errc error) {
    return cannotOpen(nativePath, openReason(error));
}

QString saveRefused(const QString& nativePath, const std::error_code& error) {
    return cannotSave(nativePath, saveReason(nativePath, error));
}

QString saveRefused(const QString& nativePath) {
    return cannotSave(nativePath, u"obsah sešitu se nepodařilo sestavit");
}

QString journalRefused(const std::error_code& error) {
    return QStringLiteral("změny nejsou zajištěny proti výpadku: %1").arg(diskReason(error));
}

} // namespace zvonika
