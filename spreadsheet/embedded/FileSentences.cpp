#include "spreadsheet/embedded/FileSentences.h"

#include "platform/ShownText.h"
#include "spreadsheet/FileRefusals.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

QString folder(const QString& nativePath) {
    return shownName(QDir::toNativeSeparators(QFileInfo(nativePath).absolutePath()));
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
    case std::errc::timed_out:
        return QStringLiteral("disk nebo síť, kde leží, neodpovídá");
    default:
        return QStringLiteral("při čtení z disku nastala chyba");
    }
}

QString saveReason(const QString& nativePath, const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory) return reason::folderMissing(nativePath);
    if (error == std::errc::not_a_directory)
        return QStringLiteral("„%1“ není složka").arg(folder(nativePath));
    return reason::ofDisk(error);
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

} // namespace zvonika
