#pragma once

#include <QString>

#include <pugixml.hpp>

namespace zvonika {

/// Loads a table from the program's folder. Nothing is ever raised: "" when the file is read, otherwise one
/// Czech sentence on why it could not be, and the document is empty. The sentence begins with `name`
/// ("Tabulka basů tonavox.xml"), which is of the feminine gender.
QString loadXmlTable(const QString& path, const QString& name, pugi::xml_document& document);

} // namespace zvonika
