#include "platform/DesktopLink.h"

#include <QUrl>

namespace zvonika {

QString desktopLink(const QString& link)
{
    const QString bare = link.startsWith(QLatin1Char('"')) ? link.mid(1) : link;
    // The characters that structure a link, and the percent sign of what is encoded already.
    return QString::fromLatin1(QUrl::toPercentEncoding(bare, ":/?#[]@!$&'()*+,;=%"));
}

} // namespace zvonika
