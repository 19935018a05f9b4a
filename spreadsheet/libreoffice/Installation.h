#pragma once

#include <QString>
#include <QStringList>

namespace zvonika {

/// What there is of LibreOffice on this machine, and of Zvonika's connection to it.
struct Installation {
    QString program;  ///< native folder of soffice.bin; "" when there is none
    QString version;  ///< "7.4"; "" when it cannot be told
    QString plugin;   ///< native file of the plug-in
    QString guardian; ///< native file of zvonika-hlidac
    QString missing;  ///< why it cannot be used: one Czech sentence; "" when it can

    bool usable() const { return missing.isEmpty(); }
};

/// Where to look. The defaults are those of the system.
struct InstallationPlaces {
    QStringList programFolders; ///< native folders that may hold soffice.bin, best first
    QStringList pluginFolders;  ///< that may hold plug-in and guardian, best first

    /// The LibreOffice on the search path, then where it is installed as a rule; the folder of the executable
    /// and the installed one beside it.
    static InstallationPlaces usual();
};

/// The first LibreOffice that can be used, or what is wrong with the first one found. At least 7.0, with Calc
/// and a window system.
Installation findLibreOffice(const InstallationPlaces& places);

} // namespace zvonika
