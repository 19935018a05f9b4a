// Acts at random on board and sheet, everything taken back and done again, every cell looked at.
//
//     steps embedded|calc ACTS SEED
//
// The song has two sheets. After each few hundred acts all of them are taken back, which must leave the song
// as it was, and done again, which must leave it as it had become. In Calc the player types nothing: what he
// does there stays in Calc's own list. Says what it did; ends with 1 at the first difference.
#include "platform/HomeDrive.h"
#include "platform/SettingsStore.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "spreadsheet/journal/JournalledSpreadsheet.h"
#include "spreadsheet/libreoffice/LibreOfficeApplication.h"
#include "tests/support/RukaVestavene.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace zvonika {

namespace {

using testing::NahodnyHrac;

constexpr int actsAtOnce = 500;

class NoSettings : public SettingsStore {
public:
    std::optional<QString> get(const QString&, const QString&) const override { return {}; }
    void save(const QString&, const QString&, const QString&) override {}
};

/// Nothing is to be asked: only tones and basses that are too many are told.
class TellingDialogs : public Dialogs {
public:
    Answer message(const Message& message) override {
        if (message.buttons == Buttons::Ok) return Answer::Ok;
        throw RuntimeError(0, QStringLiteral("asked: ") + message.text);
    }
    QString input(const QString&, const QString&) override { return {}; }
    std::optional<QString> openFile(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> saveFile(const QString&, const QString&, const QString&) override { return {}; }
};

class Run {
public:
    explicit Run(bool calc) {
        const JournalFolder journals(folder_.filePath(QStringLiteral("zaznamy")));
        if (calc) {
            pisen_.aplikaceExcel =
                std::make_unique<JournalledSpreadsheet>(office(), dialogs_, jmenoCalcu, journals);
        } else {
            auto embedded = std::make_unique<EmbeddedApplication>(drive_, dialogs_, settings_, journals);
            ruka_ = testing::rukaVestavene(*embedded);
            pisen_.aplikaceExcel = std::move(embedded);
        }
        openSong();
    }
    ~Run() {
        pisen_.excel().closeActiveWorkbook();
        pisen_.excel().quit();
    }

    bool go(int acts, unsigned seed) {
        NahodnyHrac player(pisen_, dialogs_, drive_, ruka_, seed);
        for (int done = 0; done < acts; done += actsAtOnce)
            if (!goPart(player, std::min(actsAtOnce, acts - done))) return false;
        std::printf("%d acts, %d steps taken back and done again\n", acts, steps_);
        return true;
    }

private:
    void openSong() {
        const QString song = folder_.filePath(QStringLiteral("Pokus.xls"));
        if (!QFile::copy(QStringLiteral(TWO_SHEETS), song)) throw RuntimeError(53, song);
        SpreadsheetApplication& app = pisen_.excel();
        app.setVisible(true);
        app.openWorkbook(song);
        for (const int sheet : {1, 2}) {
            app.selectSheet(sheet);
            app.clearContents(QStringLiteral("A:IV"));
            app.setValue(QStringLiteral("B1"), QStringLiteral("c1,"));
        }
        pisen_.aktualniPisen = app.activeWorkbookName();
        pisen_.plneJmeno = song;
    }

    bool goPart(NahodnyHrac& player, int acts) {
        const auto before = player.obraz();
        for (int i = 0; i < acts; ++i) {
            player.akce();
            QCoreApplication::processEvents(); // as between two commands
        }
        player.vse(SmerKroku::Znovu);
        const auto after = player.obraz();
        const int taken = player.vse(SmerKroku::Zpet);
        if (player.obraz() != before) return tell("taken back, and not as it was");
        const int again = player.vse(SmerKroku::Znovu);
        if (taken != again || player.obraz() != after) return tell("done again, and not as it was");
        steps_ += taken;
        player.zapomen();
        return true;
    }
    static bool tell(const char* what) {
        std::printf("%s\n", what);
        return false;
    }

    std::unique_ptr<LibreOfficeApplication> office() {
        InstallationPlaces places = InstallationPlaces::usual();
        places.pluginFolders = {QStringLiteral(PLUGIN_FOLDER)};
        return std::make_unique<LibreOfficeApplication>(
            LibreOfficeSurroundings{drive_,
                                    dialogs_,
                                    settings_,
                                    findLibreOffice(places),
                                    folder_.filePath(QStringLiteral("profily")),
                                    {},
                                    {},
                                    {}});
    }

    QTemporaryDir folder_;
    HomeDrive drive_{QStringLiteral("/"), {}};
    TellingDialogs dialogs_;
    NoSettings settings_;
    Pisen pisen_;
    testing::RukaVTabulce ruka_;
    int steps_ = 0;
};

} // namespace

} // namespace zvonika

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) return 2;
    try {
        QElapsedTimer clock;
        clock.start();
        const bool good =
            zvonika::Run(words[1] == QLatin1String("calc")).go(words[2].toInt(), words[3].toUInt());
        std::printf("%s in %.1f s\n", good ? "good" : "BAD", double(clock.elapsed()) / 1e3);
        return good ? 0 : 1;
    } catch (const zvonika::RuntimeError& failure) {
        std::printf("failed: %d %s\n", failure.number(), qPrintable(failure.cause()));
        return 1;
    }
}
