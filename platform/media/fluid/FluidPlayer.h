#pragma once

#include "platform/media/MidiPlayer.h"

#include <thread>

namespace zvonika {

/// Plays through FluidSynth. Sound font and audio device are opened on a thread of the player's own, because
/// both may take their time.
class FluidPlayer : public MidiPlayer {
public:
    explicit FluidPlayer(const MidiSong& song) : song_(song) {}
    ~FluidPlayer() override { stop(); }

    void play() override;
    void stop() override;

private:
    MidiSong song_;
    std::jthread thread_;
};

} // namespace zvonika
