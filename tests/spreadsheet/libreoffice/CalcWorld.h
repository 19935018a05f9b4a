#pragma once

#include "platform/HomeDrive.h"
#include "spreadsheet/libreoffice/LibreOfficeApplication.h"
#include "tests/spreadsheet/libreoffice/OfficeProcesses.h"
#include "tests/spreadsheet/libreoffice/VirtualScreen.h"
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

/// Scripted boxes during which something happens.
class EventfulDialogs : public ScriptedDialogs {
public:
    Answer message(const Message& message) override {
        if (meanwhile) std::exchange(meanwhile, nullptr)();
        return ScriptedDialogs::message(message);
    }
    std::function<void()> meanwhile; ///< while the next box is up
};

/// A real Calc with a folder of its own as drive C:, fresh profiles, settings in memory and scripted boxes.
struct CalcWorld {
    QTemporaryDir folder;
    QTemporaryDir profiles;
    HomeDrive drive{folder.path(), QString()};
    EventfulDialogs dialogs;
    MemorySettings settings;
    Installation installation = installedOffice();
    QRect window;  ///< where workbooks come up; empty: anywhere
    int signs = 0; ///< that Calc takes its time
    /// Long, for a busy machine; tests of the patience itself set their own.
    Patience patience{std::chrono::minutes(2), std::chrono::minutes(2), std::chrono::minutes(2)};

    ~CalcWorld() { EXPECT_TRUE(allGone(profiles.path())); }

    std::unique_ptr<LibreOfficeApplication> launch() {
        LibreOfficeSurroundings surroundings{drive,           dialogs, settings, installation,
                                             profiles.path(), window,  {},       {}};
        surroundings.sign = [this] { ++signs; };
        surroundings.patience = patience;
        auto application = std::make_unique<LibreOfficeApplication>(surroundings);
        application->setVisible(true);
        return application;
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    pid_t office() const { return officesOf(profiles.path()).value(0, -1); }
};

} // namespace zvonika::testing
