#include "platform/files/FileNames.h"

#include "platform/ShownText.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace zvonika {

namespace {

constexpr QStringView forbiddenSigns = u"<>:\"/\\|?*"; // a colon would make another stream of the file

bool isForbidden(QChar c) {
    return c.unicode() < u' ' || forbiddenSigns.contains(c);
}

/// With any ending: "CON.xls" is the console, too.
bool isDevice(const QString& fileName) {
    static const QStringList plain{QStringLiteral("CON"),    QStringLiteral("PRN"),
                                   QStringLiteral("AUX"),    QStringLiteral("NUL"),
                                   QStringLiteral("CONIN$"), QStringLiteral("CONOUT$")};
    static const QStringList numbered{QStringLiteral("COM"), QStringLiteral("LPT")};
    constexpr QStringView numbers = u"123456789¹²³";
    const QString name = fileName.section(QLatin1Char('.'), 0, 0).trimmed().toUpper();
    return plain.contains(name) ||
           (name.size() == 4 && numbered.contains(name.left(3)) && numbers.contains(name.back()));
}

} // namespace

QString forbiddenOnWindows(const QString& fileName) {
    const auto sign = std::ranges::find_if(fileName, isForbidden);
    if (sign != fileName.end())
        return QStringLiteral("v jeho jménu je znak „%1“, který tam být nesmí")
            .arg(shownName(QString(*sign)));
    if (fileName.endsWith(QLatin1Char('.')) || fileName.endsWith(QLatin1Char(' ')))
        return QStringLiteral("jeho jméno nesmí končit tečkou ani mezerou");
    if (isDevice(fileName))
        return QStringLiteral("jméno „%1“ patří ve Windows zařízení a soubor ho mít nesmí")
            .arg(shownName(fileName.section(QLatin1Char('.'), 0, 0)));
    return {};
}

QString forbiddenName(const QString& nativePath) {
#ifdef Q_OS_WIN
    return forbiddenOnWindows(QFileInfo(nativePath).fileName());
#else
    (void)nativePath;
    return {};
#endif
}

} // namespace zvonika
