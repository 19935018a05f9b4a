#include "aids/PovoleneAdresy.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

PovoleneAdresy::Zachazeni PovoleneAdresy::zachazeni(const QUrl& adresa) const {
    const QString schema = adresa.scheme();
    if (schema == QLatin1String("mailto")) return Zachazeni::Ven;
    const bool web = schema == QLatin1String("https") || schema == QLatin1String("http");
    const bool bezObsahu = adresa == QUrl(QStringLiteral("about:blank"));
    const bool soubor = adresa.isLocalFile() && lezi(adresa.toLocalFile());
    return web || bezObsahu || soubor ? Zachazeni::Zobrazit : Zachazeni::Odmitnout;
}

bool PovoleneAdresy::lezi(const QString& soubor) const {
    // A file that is not there has no canonical name; its page of error may be shown under the name as given.
    const QFileInfo udaje(soubor);
    const QString skutecny = udaje.exists() ? udaje.canonicalFilePath() : QDir::cleanPath(soubor);
    const QString koren = udaje.exists() ? QDir(slozka_).canonicalPath() : QDir::cleanPath(slozka_);
    if (udaje.exists() && !udaje.isFile() && !udaje.isDir()) return false; // a pipe is waited for for ever
    return !koren.isEmpty() && skutecny.startsWith(koren + QLatin1Char('/'));
}

QUrl PovoleneAdresy::zTextu(const QString& text) const {
    return QUrl::fromUserInput(text.trimmed(), slozka_, QUrl::AssumeLocalFile);
}

} // namespace zvonika
