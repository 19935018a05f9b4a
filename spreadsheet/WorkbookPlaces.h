#pragma once

#include "platform/Drive.h"
#include "platform/SettingsStore.h"
#include "spreadsheet/SpreadsheetApplication.h"

namespace zvonika {

/// Where the workbooks of a spreadsheet application lie: its default folder, which it keeps in settings of
/// its own, and the native names of the files that it is asked for. Refusals are AutomationError 1004.
class WorkbookPlaces {
public:
    /// `settings`: the application's own store.
    WorkbookPlaces(const Drive& drive, SettingsStore& settings);

    /// The default folder as it was given; "C:\Dokumenty" where the folder of an earlier instance is missing.
    QString defaultFilePath() const;
    /// A folder that does not exist is kept; the next instance has "C:\Dokumenty" for as long as it is
    /// missing.
    void setDefaultFilePath(const QString& path);
    /// Native default folder; "" when its drive does not exist.
    QString folder() const { return drive_.nativePath(defaultFilePath()); }

    /// Native name of a file given by its full name or, in the default folder, by its bare name.
    QString nativeFile(const QString& name) const;
    /// The same for a save: a bare name without ".xls" gets it.
    QString saveName(const QString& name) const;

private:
    const Drive& drive_;
    SettingsStore& settings_;
    QString defaultFilePath_;
    bool inherited_ = true; ///< the default folder comes from an earlier instance
};

/// Refuses every form of saving but the one that all back ends know: .xls, no passwords, no backup.
void refuseOtherForms(const SaveAsArguments& arguments);

} // namespace zvonika
