#include "spreadsheet/embedded/FileSentences.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

QString fileName(const QString& nativePath) {
    return QFileInfo(nativePath).fileName();
}

QString folder(const QString& nativePath) {
    return QDir::toNativeSeparators(QFileInfo(nativePath).absolutePath());
}

const QString saveAsXls = QStringLiteral("; uložte ho v programu, který ho vytvořil, jako sešit .xls");

QString reason(xls::Refusal refusal) {
    switch (refusal) {
    case xls::Refusal::Empty:
        return QStringLiteral("je prázdný");
    case xls::Refusal::NotXls:
        return QStringLiteral("není to sešit ve formátu .xls");
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
        return QStringLiteral("je chráněn heslem; zrušte ho v programu, který soubor vytvořil");
    case xls::Refusal::OldFormat:
        return QStringLiteral("je v příliš starém formátu");
    case xls::Refusal::Truncated:
        return QStringLiteral("není celý, jeho konec chybí");
    case xls::Refusal::Damaged:
        break;
    }
    return QStringLiteral("je poškozený");
}

QString openReason(std::errc error) {
    switch (error) {
    case std::errc::no_such_file_or_directory:
        return QStringLiteral("neexistuje");
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
    {std::errc::permission_denied, u"nemáte oprávnění k zápisu"},
    {std::errc::operation_not_permitted, u"nemáte oprávnění k zápisu"},
    {std::errc::read_only_file_system, u"disk je jen pro čtení"},
    {std::errc::no_space_on_device, u"na disku není dost místa"},
    {std::errc::file_too_large, u"na disku není dost místa"},
    {std::errc::not_enough_memory, u"nestačí paměť počítače"},
    {std::errc::is_a_directory, u"pod tímto jménem je na disku složka"},
    {std::errc::no_such_device, u"pod tímto jménem není obyčejný soubor"},
    {std::errc::too_many_symbolic_link_levels, u"odkaz, který na něj vede, nikam nevede"},
};

QString diskReason(const std::error_code& error) {
    for (const auto& known : saveReasons)
        if (error == known.error) return QString::fromUtf16(known.text);
#ifdef Q_OS_UNIX
    if (error == std::error_code(EDQUOT, std::generic_category()))
        return QStringLiteral("na disku není dost místa");
#endif
    return QStringLiteral("při zápisu na disk nastala chyba %1").arg(error.value());
}

QString saveReason(const QString& nativePath, const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory)
        return QStringLiteral("složka „%1“ neexistuje").arg(folder(nativePath));
    if (error == std::errc::not_a_directory)
        return QStringLiteral("„%1“ není složka").arg(folder(nativePath));
    return diskReason(error);
}

} // namespace

QString openRefused(const QString& nativePath, xls::Refusal refusal) {
    return QStringLiteral("Soubor „%1“ nelze otevřít: %2.").arg(fileName(nativePath), reason(refusal));
}

QString openRefused(const QString& nativePath, std::errc error) {
    return QStringLiteral("Soubor „%1“ nelze otevřít: %2.").arg(fileName(nativePath), openReason(error));
}

QString saveRefused(const QString& nativePath, const std::error_code& error) {
    return QStringLiteral("Soubor „%1“ nelze uložit: %2.")
        .arg(fileName(nativePath), saveReason(nativePath, error));
}

QString saveRefused(const QString& nativePath) {
    return QStringLiteral("Soubor „%1“ nelze uložit: obsah sešitu se nepodařilo sestavit.")
        .arg(fileName(nativePath));
}

QString journalRefused(const std::error_code& error) {
    return QStringLiteral("změny nejsou zajištěny proti výpadku: %1").arg(diskReason(error));
}

} // namespace zvonika
