#include "platform/media/fluid/FluidPlugin.h"

#include "platform/media/fluid/FluidPlayer.h"

#include <fluidsynth.h>

namespace zvonika {

FluidPlugin::FluidPlugin() {
    // Whatever is not in order is told by the absence of sound, not on the terminal.
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG})
        fluid_set_log_function(
            level, [](int, const char*, void*) {}, nullptr);
}

std::unique_ptr<MidiPlayer> FluidPlugin::newPlayer(const MidiSong& song) {
    return std::make_unique<FluidPlayer>(song);
}

} // namespace zvonika
