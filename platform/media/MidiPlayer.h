#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>

namespace zvonika {

/// Where sound goes to: the user's sound card where nothing is set.
struct SoundOutput {
    QString driver; ///< name of an output of the player, e.g. "file"
    QString file;   ///< native file for the output "file": .raw is 16-bit stereo samples at 44100 Hz
};

/// A song to play.
struct MidiSong {
    QByteArray file;        ///< a playable Standard MIDI File
    QStringList soundFonts; ///< native names; the first one that can be read is used
    SoundOutput output;
};

/// Plays one song in the background. Where there is no audio device nothing is heard. Ends with the object.
class MidiPlayer {
public:
    virtual ~MidiPlayer() = default;
    /// Begins from the start; returns at once.
    virtual void play() = 0;
    /// When this returns, nothing is heard any more.
    virtual void stop() = 0;
};

/// The root of the plug-in that plays: it makes players.
class MidiPlayers {
public:
    virtual ~MidiPlayers() = default;
    virtual std::unique_ptr<MidiPlayer> newPlayer(const MidiSong& song) = 0;
};

} // namespace zvonika

#define ZVONIKA_MIDI_PLAYERS "zvonika.MidiPlayers/1"
Q_DECLARE_INTERFACE(zvonika::MidiPlayers, ZVONIKA_MIDI_PLAYERS)
