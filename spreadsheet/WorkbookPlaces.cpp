#include "spreadsheet/WorkbookPlaces.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/SaveOffers.h"

#include <algorithm>

namespace zvonika {

namespace {

const QString section = QStringLiteral("Tabulka");
const QString folderKey = QStringLiteral("DefaultFilePath");
const QString documentsFolder = QStringLiteral("C:\\Dokumenty");

bool isSlash(QChar c) {
    return c == QLatin1Char('/') || c == QLatin1Char('\\');
}

bool isBareName(const QString& name) {
    return !hasDrive(name) && std::none_of(name.begin(), name.end(), isSlash);
}

bool isFullName(const QString& name) {
    return hasDrive(name) || (!name.isEmpty() && isSlash(name.front()));
}

} // namespace

WorkbookPlaces::WorkbookPlaces(const Drive& drive, SettingsStore& settings)
    : drive_(drive), settings_(settings),
      defaultFilePath_(settings.getOr(section, folderKey, documentsFolder)) {}

QString WorkbookPlaces::defaultFilePath() const {
    // Looked at each time: the folder may come into being while the application runs.
    const bool lost = defaultFilePath_.isEmpty() || !drive_.folderExists(defaultFilePath_);
    return inherited_ && lost ? documentsFolder : defaultFilePath_;
}

void WorkbookPlaces::setDefaultFilePath(const QString& path) {
    defaultFilePath_ = path;
    inherited_ = false;
    settings_.save(section, folderKey, path);
}

QString WorkbookPlaces::nativeFile(const QString& name) const {
    if (name.isEmpty()) refuse(QStringLiteral("Chybí jméno souboru."));
    const bool full = isFullName(name);
    const QString native = full ? drive_.nativePath(name) : folder();
    if (native.isEmpty())
        refuse(QStringLiteral("Disk „%1“ na tomto počítači není.")
                   .arg((full ? name : defaultFilePath()).left(2)));
    return full ? native : native + QLatin1Char('/') + name;
}

QString WorkbookPlaces::saveName(const QString& name) const {
    return nativeFile(isBareName(name) && !name.isEmpty() ? withXlsEnding(name) : name);
}

void refuseOtherForms(const SaveAsArguments& arguments) {
    const SaveAsArguments known;
    if (arguments.fileFormat != known.fileFormat)
        refuse(QStringLiteral("Sešit lze uložit jen v běžném formátu .xls."));
    if (!arguments.password.isEmpty() || !arguments.writeResPassword.isEmpty())
        refuse(QStringLiteral("Sešit nelze uložit s heslem."));
    if (arguments.readOnlyRecommended || arguments.createBackup)
        refuse(QStringLiteral("Sešit nelze uložit se záložní kopií ani s doporučením jen ke čtení."));
}

} // namespace zvonika
