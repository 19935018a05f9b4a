#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

namespace zvonika {

/// Loads a table from the program's folder. Nothing is ever raised: "" when the file is read, otherwise one
/// Czech sentence on why it could not be, and the document is empty. The sentence begins with `name`
/// ("Tabulka basů tonavox.xml"), which is of the feminine gender.
QString loadXmlTable(const QString& path, const QString& name, pugi::xml_document& document);

/// The two halves of that: the file's bytes, "" when it cannot be read, and what they say.
struct XmlTableFile {
    QByteArray content;
    QString trouble; ///< the sentence; "" when the file was read
};
XmlTableFile readXmlTable(const QString& path, const QString& name);
QString parseXmlTable(const QByteArray& content, const QString& name, pugi::xml_document& document);

} // namespace zvonika
