#pragma once

#include "platform/media/MidiPlayer.h"

namespace zvonika {

/// The root object of the plug-in.
class FluidPlugin : public QObject, public MidiPlayers {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZVONIKA_MIDI_PLAYERS)
    Q_INTERFACES(zvonika::MidiPlayers)
public:
    FluidPlugin();

    std::unique_ptr<MidiPlayer> newPlayer(const MidiSong& song) override;
};

} // namespace zvonika
