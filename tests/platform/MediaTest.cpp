// Sound by command strings: what the strings do, and that a song written here can really be heard.
#include "platform/HomeDrive.h"
#include "platform/media/FluidMedia.h"
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
        {"half of it", song.first(song.size() / 2), false},
        {"last byte missing", song.chopped(1), false},
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
    void save(const QString& file, const QByteArray& content) {
        QFile written(folder.filePath(file));
        ASSERT_TRUE(written.open(QIODevice::WriteOnly));
        ASSERT_EQ(written.write(content), content.size());
    }
    int send(const QString& command) { return media.sendString(command); }
    int open(const QString& file) { return send("open " + file + " type sequencer"); }

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
    SoundPlaces places{{QStringLiteral(ZVONIKA_PLUGINS)},
                       {QStringLiteral("/usr/share/sounds/sf2")},
                       {QStringLiteral("file"), folder.filePath(QStringLiteral("zvuk.raw"))}};
    FluidMedia media{drive, places};
};

/// The player and a sound font are there.
class HeardMediaTest : public MediaTest {
protected:
    void SetUp() override {
        if (QDir(QStringLiteral(ZVONIKA_PLUGINS)).entryList({"*zvonika_fluid.*"}).isEmpty())
            GTEST_SKIP() << "built without FluidSynth";
        if (soundFonts(places.soundFontFolders).isEmpty()) GTEST_SKIP() << "no sound font is installed";
    }
};

} // namespace

TEST_F(MediaTest, WhatCannotBePlayedIsAnErrorCode) {
    save("Kočka leze dírou.mid", song);
    save("rozbita.mid", song.chopped(9));
    save("nahravka.mp3", "ID3");
    QDir(folder.path()).mkdir("slozka.mid");
    const QPair<QString, int> cases[] = {
        {"", mediaError::missingCommand},
        {"  ", mediaError::missingCommand},
        {"record C:\\a.mid", mediaError::unrecognizedCommand},
        {"open", mediaError::missingDeviceName},
        {"open C:\\a.mid", mediaError::deviceTypeRequired},
        {"open C:\\a.mid type waveaudio", mediaError::deviceNotInstalled},
        {"open C:\\neni.mid type sequencer", mediaError::fileNotFound},
        {"open Q:\\a.mid type sequencer", mediaError::fileNotFound},
        {"open C:\\slozka.mid type sequencer", mediaError::fileNotFound},
        {"open C:\\rozbita.mid type sequencer", mediaError::invalidFile},
        {"open C:\\nahravka.mp3 type sequencer", mediaError::invalidFile},
        {"play", mediaError::missingDeviceName},
        {"play " + name, mediaError::invalidDeviceName},
        {"stop " + name, mediaError::invalidDeviceName},
        {"close " + name, mediaError::invalidDeviceName},
    };
    for (const auto& [command, code] : cases)
        EXPECT_EQ(send(command), code) << command.toStdString();

    SoundPlaces nothing = places;
    nothing.pluginFolders = {folder.path()};
    EXPECT_EQ(FluidMedia(drive, nothing).sendString("open " + name + " type sequencer"),
              mediaError::cannotLoadDriver);
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

TEST_F(HeardMediaTest, ASongIsHeardUntilItIsClosed) {
    save("Kočka leze dírou.mid", song);
    ASSERT_EQ(open(name), 0);
    EXPECT_EQ(open(name.toUpper()), mediaError::duplicateAlias);
    EXPECT_EQ(send("play " + name), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return heard(samples()); }, 20000));
    EXPECT_EQ(send("stop " + name), 0);
    const QByteArray atStop = samples();
    EXPECT_EQ(send("PLAY \"" + name + "\""), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return samples() != atStop && heard(samples()); }, 20000));
    EXPECT_EQ(send("close " + name), 0); // while it plays
    EXPECT_EQ(send("stop " + name), mediaError::invalidDeviceName);
    const QByteArray atClose = samples();
    EXPECT_EQ(open(name), 0);
    EXPECT_EQ(samples(), atClose) << "opening alone makes no sound";
}

TEST_F(HeardMediaTest, ARestIsSilent) {
    save("pomlka.mid", rest);
    ASSERT_EQ(open("C:\\pomlka.mid"), 0);
    EXPECT_EQ(send("play C:\\pomlka.mid"), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return samples().size() > 20000; }, 20000));
    EXPECT_EQ(send("close C:\\pomlka.mid"), 0);
    EXPECT_FALSE(heard(samples()));
}

TEST_F(HeardMediaTest, ManySongsComeAndGoWhilePlaying) {
    for (int i = 0; i < 8; ++i)
        save(QStringLiteral("%1.mid").arg(i), song);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(open(QStringLiteral("C:\\%1.mid").arg(i)), 0);
        EXPECT_EQ(send(QStringLiteral("play C:\\%1.mid").arg(i)), 0);
        if (i % 2) {
            EXPECT_EQ(send(QStringLiteral("close C:\\%1.mid").arg(i)), 0);
        }
    }
    // the others end with the object
}

TEST_F(HeardMediaTest, WithoutADeviceOrAReadableSoundFontItPlaysInSilence) {
    save("Kočka leze dírou.mid", song);
    places.output = {};
    places.output.driver = QStringLiteral("takový není");
    FluidMedia bezZarizeni(drive, places);
    EXPECT_EQ(bezZarizeni.sendString("open " + name + " type sequencer"), 0);
    EXPECT_EQ(bezZarizeni.sendString("play " + name), 0);
    EXPECT_EQ(bezZarizeni.sendString("close " + name), 0);

    places.soundFontFolders = {folder.path()};
    EXPECT_EQ(FluidMedia(drive, places).sendString("open " + name + " type sequencer"),
              mediaError::noMidiPresent);
    save("rozbity.sf2", "nic");
    FluidMedia bezZvuku(drive, places);
    EXPECT_EQ(bezZvuku.sendString("open " + name + " type sequencer"), 0);
    EXPECT_EQ(bezZvuku.sendString("play " + name), 0);
    EXPECT_EQ(bezZvuku.sendString("close " + name), 0);
}

} // namespace zvonika::testing
