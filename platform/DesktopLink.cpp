#include "platform/DesktopLink.h"

#include <QUrl>

namespace zvonika {

QString desktopLink(const QString& link) {
    const QString bare = link.startsWith(QLatin1Char('"')) ? link.mid(1) : link;
    // The tolerant reading leaves encoded characters alone and encodes a stray percent sign.
    return QString::fromLatin1(QUrl(bare, QUrl::TolerantMode).toEncoded());
}

} // namespace zvonika
