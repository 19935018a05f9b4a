// One run of a spreadsheet that records a song until it is killed; kills.py beside it does the killing.
//
//     song_run embedded|calc STATE SONG FIRST
//
// Boxes are answered Yes. Opens SONG (makes it when it is not there), tells of all its rows, and records grip
// after grip from row FIRST on, each as one step, taking some back and doing them again, and saving now and
// then. Lines on the standard output:
//     row <number> <cells>     a row that holds something, cells from A on, ended by "|"
//     ready                    after the last of them
//     ack <row> <cells>        this grip is recorded
//     end <number>             a call has failed with that error
#include "platform/HomeDrive.h"
#include "platform/SettingsStore.h"
#include "playing/undo/ZapisRadku.h"
#include "song/SongSheet.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "spreadsheet/journal/JournalledSpreadsheet.h"
#include "spreadsheet/libreoffice/LibreOfficeApplication.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace zvonika {

namespace {

constexpr int lastGrip = 400;
constexpr int gripsPerSave = 9;
constexpr int gripsPerTurn = 3; ///< every third is taken back and done again

void tell(const QString& line) {
    const QByteArray bytes = QString(line).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8() + '\n';
    if (::write(STDOUT_FILENO, bytes.constData(), std::size_t(bytes.size())) != bytes.size()) ::_exit(3);
}

class NoSettings : public SettingsStore {
public:
    std::optional<QString> get(const QString&, const QString&) const override { return {}; }
    void save(const QString&, const QString&, const QString&) override {}
};

class AlwaysYes : public Dialogs {
public:
    Answer message(const Message& message) override {
        tell(QStringLiteral("asked ") + message.text);
        return message.buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    QString input(const QString&, const QString&) override { return {}; }
    std::optional<QString> openFile(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> saveFile(const QString&, const QString&, const QString&) override { return {}; }
};

class SongRun {
public:
    SongRun(bool calc, const QString& state, const QString& song) : song_(song) {
        const JournalFolder journals(state + QStringLiteral("/zaznamy"));
        if (calc)
            pisen_.aplikaceExcel =
                std::make_unique<JournalledSpreadsheet>(office(state), dialogs_, jmenoCalcu, journals);
        else
            pisen_.aplikaceExcel =
                std::make_unique<EmbeddedApplication>(drive_, dialogs_, settings_, journals);
    }

    void open() {
        SpreadsheetApplication& app = pisen_.excel();
        app.setVisible(true);
        if (QFileInfo::exists(song_)) {
            app.openWorkbook(song_);
        } else {
            app.addWorkbook();
            app.saveActiveWorkbookAs({song_});
        }
        pisen_.aktualniPisen = app.activeWorkbookName();
        pisen_.plneJmeno = song_;
        const CellBlock cells = app.readBlock(QStringLiteral("A1:W500"));
        for (int row = 1; row <= cells.size(); ++row)
            if (const QString text = joined(cells.at(row - 1)); !text.isEmpty())
                tell(QStringLiteral("row %1 %2").arg(row).arg(text));
        tell(QStringLiteral("ready"));
    }

    void record(int first) {
        SongSheet sheet(pisen_);
        for (int row = first; row <= lastGrip; ++row) {
            sheet.vyberRadek(row);
            recordGrip(sheet, row);
            if (row % gripsPerTurn == 0) turnBackAndAgain();
            QCoreApplication::processEvents(); // as between two commands
            tell(QStringLiteral("ack %1 %2")
                     .arg(row)
                     .arg(joined(pisen_.excel().readBlock(QStringLiteral("A%1:W%1").arg(row)).first())));
            if (row % gripsPerSave == 0) pisen_.excel().saveActiveWorkbook();
        }
    }

    void end() {
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                pisen_.excel().quit();
                return;
            } catch (const AutomationError&) {
            }
        }
    }

private:
    std::unique_ptr<LibreOfficeApplication> office(const QString& state) {
        InstallationPlaces places = InstallationPlaces::usual();
        places.pluginFolders = {QStringLiteral(PLUGIN_FOLDER)};
        return std::make_unique<LibreOfficeApplication>(
            LibreOfficeSurroundings{drive_,
                                    dialogs_,
                                    settings_,
                                    findLibreOffice(places),
                                    state + QStringLiteral("/profily"),
                                    {},
                                    {},
                                    {}});
    }

    /// No two grips of a song are alike.
    void recordGrip(SongSheet& sheet, int row) {
        const int list = sheet.zacniZapis();
        ZapisRadku step(pisen_, kroky_, list);
        Grip grip;
        grip.tony = QStringList{QStringLiteral("c%1,").arg(row), QStringLiteral("e%1,").arg(row % 7)};
        grip.tonina = QStringLiteral("G dur");
        sheet.zapis(list, grip, {CastHmatu::Tony, CastHmatu::Tonina});
        grip.basy = QStringList{QStringLiteral("C%1").arg(row)};
        sheet.zapis(list, grip, {CastHmatu::Basy});
        grip.smer = row % 2 ? QStringLiteral("Tah") : QStringLiteral("Tlak");
        grip.prstoklad = QStringLiteral("l%1;1\\").arg(row % 49 + 1);
        sheet.zapis(list, grip, {CastHmatu::Smer, CastHmatu::Prstoklad});
        step.dokonci(popisZapisu(list));
    }

    void turnBackAndAgain() {
        SeznamKroku& steps = *kroky_.otevrene();
        for (const SmerKroku way : {SmerKroku::Zpet, SmerKroku::Znovu}) {
            QCoreApplication::processEvents();
            ProvedeniKroku turn(pisen_.excel(), steps.dalsi(way)->krok, way);
            const JedenKrok whole(pisen_.excel());
            turn.proved();
            steps.proveden(way, turn.provedeno());
        }
    }

    static QString joined(const QVector<CellValue>& row) {
        QString text;
        for (const CellValue& value : row)
            text += cellText(value) + QLatin1Char('|');
        return text.count(QLatin1Char('|')) == text.size() ? QString() : text;
    }

    QString song_;
    HomeDrive drive_{QStringLiteral("/"), {}};
    AlwaysYes dialogs_;
    NoSettings settings_;
    Pisen pisen_;
    SeznamyKroku kroky_{pisen_, drive_};
};

int run(const QStringList& words) {
    SongRun song(words[1] == QLatin1String("calc"), words[2], words[3]);
    try {
        song.open();
        song.record(words[4].toInt());
    } catch (const RuntimeError& failure) {
        tell(QStringLiteral("end %1 %2").arg(failure.number()).arg(failure.cause()));
    }
    song.end();
    return 0;
}

} // namespace

} // namespace zvonika

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 5) return 2;
    try {
        return zvonika::run(words);
    } catch (const zvonika::RuntimeError& failure) {
        zvonika::tell(QStringLiteral("end %1 %2").arg(failure.number()).arg(failure.cause()));
        return 1;
    }
}
