#include "platform/XmlTable.h"

#include <QFile>

namespace zvonika {

XmlTableFile readXmlTable(const QString& path, const QString& name) {
    QFile file(path);
    if (!file.exists()) return {{}, name + QStringLiteral(" nebyla ve složce programu nalezena.")};
    // The system's own words would come in its language, not the user's.
    if (!file.open(QIODevice::ReadOnly))
        return {{}, name + QStringLiteral(" nejde přečíst: není to soubor, nebo k němu nemáte oprávnění.")};
    return {file.readAll(), {}};
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
