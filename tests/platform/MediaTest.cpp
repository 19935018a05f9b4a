// Sound by command strings: what the strings do, and that a song written here can really be heard.
#include "platform/HomeDrive.h"
#include "platform/media/FluidMedia.h"
#include "platform/media/MediaCommand.h"
#include "platform/media/MidiFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>

namespace zvonika::testing {

namespace {

QByteArray number(quint32 value, int bytes) {
    QByteArray out;
    while (bytes-- > 0)
        out.append(char(value >> 8 * bytes));
    return out;
}

QByteArray chunk(const char* id, const QByteArray& content) {
    return id + number(quint32(content.size()), 4) + content;
}

QByteArray header(int format, int tracks, int division) {
    return chunk("MThd",
                 number(quint32(format), 2) + number(quint32(tracks), 2) + number(quint32(division), 2));
}

/// Events in hexadecimal; the end of the track is added.
QByteArray midi(const QByteArray& events) {
    return header(0, 1, 96) + chunk("MTrk", QByteArray::fromHex(events + "00ff2f00"));
}

/// An accordion holds c1 and, by running status, e1 for a few seconds.
const QByteArray song = midi("00ff510307a120 00c015 00903c64 004064 8d00 903c00 004000");
/// The same time with nothing sounding.
const QByteArray rest = midi("8d00 903c00");

} // namespace

TEST(MidiFile, TellsWholeFilesFromOthers) {
    const QByteArray track = chunk("MTrk", QByteArray::fromHex("00ff2f00"));
    const struct {
        const char* what;
        QByteArray file;
        bool playable;
    } cases[] = {
        {"a song", song, true},
        {"sysex, text, pitch wheel, pressure", midi("00f0027ef7 00ff0103616263 00e00040 00d040 00f70100"),
         true},
        {"foreign chunk between", header(1, 2, 96) + track + chunk("XFIH", "abc") + track, true},
        {"what stands behind the tracks", song + "rubbish", true},
        {"empty", {}, false},
        {"another kind", "RIFF....WAVEfmt ", false},
        {"second track missing", header(1, 2, 96) + track, false},
        {"no tracks", header(1, 0, 96), false},
        {"time in film frames", header(0, 1, 0xE728) + track, false},
        {"no time", header(0, 1, 0) + track, false},
        {"format 3", header(3, 1, 96) + track, false},
        {"no status to run on", midi("003c64"), false},
        {"meta event ends the running status", midi("00903c64 00ff0100 003c64"), false},
        {"data byte too large", midi("0090bc64"), false},
        {"endless time", midi("8080808000903c64"), false},
        {"text beyond the track", midi("00ff01ffffff7f"), false},
        {"event of the wire", midi("00f8"), false},
    };
    for (const auto& [what, file, playable] : cases)
        EXPECT_EQ(isPlayableMidi(file), playable) << what;
    for (qsizetype length = 0; length < song.size(); ++length)
        EXPECT_FALSE(isPlayableMidi(song.first(length))) << length;
}

namespace {

const QString name = QStringLiteral("C:\\Kočka leze dírou.mid");

class MediaTest : public ::testing::Test {
protected:
    void SetUp() override {
        save("Kočka leze dírou.mid", song);
        save("pomlka.mid", rest);
        save("rozbita.mid", song.chopped(9));
        save("nahravka.mp3", "ID3");
        QDir(folder.path()).mkdir("slozka.mid");
    }
    void save(const QString& file, const QByteArray& content) {
        QFile written(folder.filePath(file));
        ASSERT_TRUE(written.open(QIODevice::WriteOnly));
        ASSERT_EQ(written.write(content), content.size());
    }
    static QString opening(const QString& song) { return "open " + song + ".mid type sequencer"; }
    bool canPlay() const {
        return !QDir(ZVONIKA_PLUGINS).entryList({"*zvonika_fluid.*"}).isEmpty() &&
               !soundFonts(places.soundFontFolders).isEmpty();
    }
    QByteArray samples() {
        QFile file(places.output.file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool heard(const QByteArray& samples) {
        const auto* values = reinterpret_cast<const qint16*>(samples.constData());
        return std::any_of(values, values + samples.size() / 2, [](qint16 v) { return std::abs(v) > 300; });
    }

    QTemporaryDir folder;
    HomeDrive drive{folder.path(), {}};
    SoundPlaces places{
        {ZVONIKA_PLUGINS}, {"/usr/share/sounds/sf2"}, {"file", folder.filePath(QStringLiteral("zvuk.raw"))}};
};

} // namespace

TEST_F(MediaTest, EachCommandHasItsCodeAndItsSound) {
    const std::pair<int, QStringList> refused[] = {
        {mediaError::missingCommand, {"", "  "}},
        {mediaError::unrecognizedCommand, {"record C:\\a.mid"}},
        {mediaError::missingDeviceName, {"open", "play"}},
        {mediaError::deviceTypeRequired, {"open C:\\a.mid"}},
        {mediaError::deviceNotInstalled, {"open C:\\a.mid type waveaudio"}},
        {mediaError::fileNotFound, {opening("C:\\neni"), opening("Q:\\a"), opening("C:\\slozka")}},
        {mediaError::invalidFile, {opening("C:\\rozbita"), "open C:\\nahravka.mp3 type sequencer"}},
        {mediaError::invalidDeviceName, {"play " + name, "stop " + name, "close " + name}},
    };
    FluidMedia media(drive, places);
    for (const auto& [code, commands] : refused)
        for (const QString& command : commands)
            EXPECT_EQ(media.sendString(command), code) << command.toStdString();
    if (!canPlay()) GTEST_SKIP() << "without FluidSynth or a sound font";

    enum Sound { Unchanged, Any, Silent, Heard };
    const std::tuple<QString, int, Sound> steps[] = {
        {opening("C:\\pomlka"), 0, Unchanged},
        {"play C:\\pomlka.mid", 0, Silent},
        {"close C:\\pomlka.mid", 0, Any},
        {opening(name.chopped(4)), 0, Unchanged},
        {opening(name.chopped(4).toUpper()), mediaError::duplicateAlias, Unchanged},
        {"play " + name, 0, Heard},
        {"stop " + name, 0, Any},
        {"PLAY \"" + name + "\"", 0, Heard}, // from the start
        {"close " + name, 0, Any},           // while it plays
        {"stop " + name, mediaError::invalidDeviceName, Unchanged},
        {opening(name.chopped(4)), 0, Unchanged},
    };
    for (const auto& [command, code, sound] : steps) {
        const QByteArray before = samples();
        EXPECT_EQ(media.sendString(command), code) << command.toStdString();
        const auto asExpected = [&, expected = sound] {
            const QByteArray now = samples();
            if (expected == Unchanged) return now == before;
            return expected == Any ||
                   (now != before && now.size() > 20000 && heard(now) == (expected == Heard));
        };
        EXPECT_TRUE(QTest::qWaitFor(asExpected, 20000)) << command.toStdString();
    }
}

TEST_F(MediaTest, WhatIsMissingIsACodeOrSilence) {
    QDir(folder.path()).mkdir("pismo");
    save("pismo/rozbity.sf2", "nic");
    const QStringList installed = places.pluginFolders, fonts = places.soundFontFolders;
    const QString empty = folder.filePath("slozka.mid");
    const struct {
        QStringList plugins, fonts;
        QString driver;
        int code;
    } cases[] = {
        {{empty}, fonts, "file", mediaError::cannotLoadDriver},
        {installed, {empty}, "file", mediaError::noMidiPresent},
        {installed, {folder.filePath("pismo")}, "file", 0},
        {installed, fonts, "takový není", 0},
    };
    for (const auto& c : cases) {
        if (c.plugins == installed && !canPlay()) GTEST_SKIP() << "without FluidSynth or a sound font";
        FluidMedia media(drive, {c.plugins, c.fonts, {c.driver, places.output.file}});
        EXPECT_EQ(media.sendString(opening(name.chopped(4))), c.code);
        const int then = c.code ? mediaError::invalidDeviceName : 0;
        for (const char* verb : {"play ", "close "})
            EXPECT_EQ(media.sendString(verb + name), then) << verb;
    }
}

TEST_F(MediaTest, ManySongsComeAndGoWhilePlaying) {
    if (!canPlay()) GTEST_SKIP() << "without FluidSynth or a sound font";
    FluidMedia media(drive, places);
    for (int i = 0; i < 8; ++i) {
        const QString file = QString::number(i);
        save(file + ".mid", song);
        EXPECT_EQ(media.sendString(opening("C:\\" + file)), 0);
        EXPECT_EQ(media.sendString("play C:\\" + file + ".mid"), 0);
        if (i % 2) media.sendString("close C:\\" + file + ".mid"); // the others end with the object
    }
}

TEST_F(MediaTest, TheDefaultSoundFontThenTheSmallest) {
    for (const auto& [file, size] :
         {std::pair("a.sf2", 30), {"b.sf3", 10}, {"default-GM.sf2", 50}, {"c.txt", 1}})
        save(QString::fromLatin1(file), QByteArray(size, 'x'));
    QDir(folder.path()).mkdir("d.sf2");
    QStringList names;
    for (const QString& font : soundFonts({folder.filePath("neni"), folder.path()}))
        names << QFileInfo(font).fileName();
    EXPECT_EQ(names, QStringList({"default-GM.sf2", "b.sf3", "a.sf2"}));
}

TEST(MediaCommand, NamesTheFileAsTheSystemsOwnInterfaceTakesIt) {
    const HomeDrive drive({}, {});
    const std::pair<const char*, const char*> commands[] = {
        {"open C:\\a.mid type sequencer", "open C:\\a.mid type sequencer"},
        {"open C:\\Kočka leze.mid type sequencer", "open \"C:\\Kočka leze.mid\" type sequencer"},
        {"open C:\\a type b.mid type sequencer", "open \"C:\\a type b.mid\" type sequencer"},
        {"play C:\\Kočka leze.mid", "play \"C:\\Kočka leze.mid\""},
        {"stop \"C:\\a b.mid\"", "stop \"C:\\a b.mid\""},
        {"close all", "close all"},
        {"", ""},
    };
    for (const auto& [command, told] : commands)
        EXPECT_EQ(systemCommand(command, drive).toStdString(), QDir::toNativeSeparators(told).toStdString());
    EXPECT_EQ(systemCommand("play C:\\a.mid", HomeDrive("/home/eva", {})).toStdString(),
              "play " + QDir::toNativeSeparators("/home/eva/a.mid").toStdString());
}

} // namespace zvonika::testing
