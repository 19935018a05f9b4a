#include "platform/media/fluid/FluidPlayer.h"

#include <fluidsynth.h>

namespace zvonika {

namespace {

/// Whatever is not in order is told by the absence of sound, not on the terminal.
void beSilent(int, const char*, void*) {}

} // namespace

/// The plug-in's root object.
class FluidPlugin : public QObject, public MidiPlayers {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZVONIKA_MIDI_PLAYERS)
    Q_INTERFACES(zvonika::MidiPlayers)
public:
    FluidPlugin() {
        for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG})
            fluid_set_log_function(level, beSilent, nullptr);
    }

    std::unique_ptr<MidiPlayer> newPlayer(const MidiSong& song) override {
        return std::make_unique<FluidPlayer>(song);
    }
};

} // namespace zvonika

#include "FluidPlugin.moc"
