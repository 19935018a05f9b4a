#include "platform/XmlTable.h"

#include "platform/files/RegularFile.h"

#include <utility>

namespace zvonika {

namespace {

constexpr qint64 largestTable = 4 << 20; ///< bytes; ours have some thousands

} // namespace

XmlTableFile readXmlTable(const QString& path, const QString& name) {
    ReadBytes file = readRegular(path, Links::Follow, largestTable);
    if (!file.trouble) return {std::move(file.bytes), {}};
    if (file.trouble == std::errc::no_such_file_or_directory)
        return {{}, name + QStringLiteral(" nebyla ve složce programu nalezena.")};
    if (file.trouble == std::errc::file_too_large)
        return {{}, name + QStringLiteral(" nejde přečíst: je příliš velká.")};
    // The system's own words would come in its language, not the user's.
    return {{}, name + QStringLiteral(" nejde přečíst: není to soubor, nebo k němu nemáte oprávnění.")};
}

QString parseXmlTable(const QByteArray& content, const QString& name, pugi::xml_document& document) {
    if (document.load_buffer(content.constData(), static_cast<std::size_t>(content.size()))) return {};
    document.reset(); // what was read up to the damage is no table
    return name + QStringLiteral(" je poškozená a nejde přečíst.");
}

QString loadXmlTable(const QString& path, const QString& name, pugi::xml_document& document) {
    document.reset();
    const XmlTableFile file = readXmlTable(path, name);
    return file.trouble.isEmpty() ? parseXmlTable(file.content, name, document) : file.trouble;
}

} // namespace zvonika
