#include "spreadsheet/libreoffice/Profile.h"

#include "platform/RuntimeError.h"
#include "platform/files/PrivateFolder.h"
#include "platform/files/RegularFile.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QUrl>
#include <QVector>

#include <algorithm>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace zvonika {

namespace {

constexpr int mostProfiles = 20;
constexpr qint64 largestSettings = 64 << 20; ///< bytes

struct Setting {
    QByteArray path, name, value;
};

const QByteArray spreadsheets = "/org.openoffice.Setup/Office/Factories/"
                                "org.openoffice.Setup:Factory['com.sun.star.sheet.SpreadsheetDocument']";
const QByteArray autoCorrect = "/org.openoffice.Office.Common/AutoCorrect";

QVector<Setting> fixedSettings() {
    return {
        {"/org.openoffice.Office.Common/Misc", "FirstRun", "false"},
        {"/org.openoffice.Office.Common/Misc", "ShowTipOfTheDay", "false"},
        {"/org.openoffice.Office.Common/Save/Document", "WarnAlienFormat", "false"},
        {"/org.openoffice.Office.Recovery/AutoSave", "Enabled", "false"},
        {"/org.openoffice.Office.UI.Infobar/Enabled", "Donate", "false"},
        {"/org.openoffice.Office.UI.Infobar/Enabled", "GetInvolved", "false"},
        {"/org.openoffice.Office.UI.Infobar/Enabled", "WhatsNew", "false"},
        {spreadsheets, "ooSetupFactoryDefaultFilter", "MS Excel 97"},
        {"/org.openoffice.Office.Calc/Input", "AutoInput", "false"},
        {autoCorrect, "CapitalAtStartSentence", "false"},
        {autoCorrect, "TwoCapitalsAtStart", "false"},
        {autoCorrect, "UseReplacementTable", "false"},
        {autoCorrect, "ChangeDash", "false"},
        {autoCorrect, "SetInetAttr", "false"},
    };
}

QByteArray windowAttributes(const QRect& at) {
    const QString text = QStringLiteral("%1,%2,%3,%4;1;0,0,0,0;");
    return text.arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height()).toLatin1();
}

QVector<Setting> settings(const ProfileSeed& seed) {
    QVector<Setting> all = fixedSettings();
    if (!seed.workFolder.isEmpty())
        all.push_back({"/org.openoffice.Office.Paths/Paths/org.openoffice.Office.Paths:NamedPath['Work']",
                       "WritePath", QUrl::fromLocalFile(seed.workFolder).toEncoded()});
    if (!seed.version.isEmpty())
        all.push_back({"/org.openoffice.Setup/Product", "ooSetupLastVersion", seed.version.toLatin1()});
    if (const QRect& at = seed.window; !at.isEmpty())
        all.push_back({spreadsheets, "ooSetupFactoryWindowAttributes", windowAttributes(at)});
    return all;
}

QByteArray head(const Setting& setting) {
    return "<item oor:path=\"" + setting.path + "\"><prop oor:name=\"" + setting.name + '"';
}

QByteArray line(const Setting& setting) {
    const QByteArray value = QString::fromUtf8(setting.value).toHtmlEscaped().toUtf8();
    return head(setting) + " oor:op=\"fuse\"><value>" + value + "</value></prop></item>";
}

const QByteArray opening = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                           "<oor:items xmlns:oor=\"http://openoffice.org/2001/registry\" "
                           "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" "
                           "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n";
const QByteArray closing = "</oor:items>\n";

// The office writes one item a line, so those that are set anew can be left out by their beginnings.
QByteArray withSettings(const QByteArray& before, const QVector<Setting>& settings) {
    QByteArray after = opening;
    const auto isSet = [&](const QByteArray& item) {
        return std::any_of(settings.begin(), settings.end(),
                           [&](const Setting& setting) { return item.startsWith(head(setting)); });
    };
    for (const QByteArray& item : before.split('\n'))
        if (item.startsWith("<item ") && !isSet(item)) after += item + '\n';
    for (const Setting& setting : settings)
        after += line(setting) + '\n';
    return after + closing;
}

int tryLock(const QString& file) {
    const int lock = open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lock < 0 || flock(lock, LOCK_EX | LOCK_NB) == 0) return lock;
    close(lock);
    return -1;
}

} // namespace

Profile::Profile(const QString& folder) {
    makePrivateFolder(folder); // what was opened last is nobody else's business
    for (int number = 1; number <= mostProfiles && lock_ < 0; ++number) {
        path_ = QDir(folder).filePath(QString::number(number));
        if (!QDir().mkpath(path_ + QStringLiteral("/user"))) break;
        lock_ = tryLock(path_ + QStringLiteral("/zvonika.lock"));
    }
    if (lock_ < 0)
        throw RuntimeError(error::cannotCreateObject,
                           QStringLiteral("Složku „%1“ pro nastavení LibreOffice nelze použít.").arg(folder));
}

Profile::~Profile() {
    close(lock_);
}

void Profile::seed(const ProfileSeed& seed) const {
    const QString name = path_ + QStringLiteral("/user/registrymodifications.xcu");
    const QByteArray before = readRegular(name, Links::Follow, largestSettings).bytes;
    QSaveFile file(name);
    if (file.open(QIODevice::WriteOnly)) file.write(withSettings(before, settings(seed)));
    if (!file.commit())
        throw RuntimeError(error::cannotCreateObject,
                           QStringLiteral("Nastavení LibreOffice nelze zapsat do složky „%1“.").arg(path_));
}

} // namespace zvonika
