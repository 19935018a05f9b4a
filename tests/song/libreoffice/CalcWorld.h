#pragma once

#include "platform/HomeDrive.h"
#include "song/libreoffice/LibreOfficeApplication.h"
#include "tests/song/libreoffice/VirtualScreen.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/ScriptedDialogs.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika::testing {

/// The LibreOffice that the tests drive: the one of this machine with the plug-in of this build.
inline const Installation& installedOffice() {
    static const Installation found = [] {
        InstallationPlaces places = InstallationPlaces::usual();
        places.pluginFolders = {QStringLiteral(PLUGIN_FOLDER)};
        return findLibreOffice(places);
    }();
    return found;
}

/// A real Calc with a folder of its own as drive C:, fresh profiles, settings in memory and scripted boxes.
struct CalcWorld {
    QTemporaryDir folder;
    QTemporaryDir profiles;
    HomeDrive drive{folder.path(), QString()};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    int signs = 0; ///< that Calc takes its time
    Patience patience = {};

    std::unique_ptr<LibreOfficeApplication> launch() {
        return std::make_unique<LibreOfficeApplication>(LibreOfficeSurroundings{drive,
                                                                                dialogs,
                                                                                settings,
                                                                                installedOffice(),
                                                                                profiles.path(),
                                                                                {},
                                                                                [this] { ++signs; },
                                                                                {},
                                                                                patience});
    }
    QString path(const QString& name) const { return folder.filePath(name); }
};

} // namespace zvonika::testing
