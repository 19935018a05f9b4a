#include "platform/media/fluid/FluidPlayer.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <condition_variable>
#include <fluidsynth.h>
#include <mutex>

namespace zvonika {

namespace {

using namespace std::chrono_literals;

template <auto destroy>
struct Destroy {
    template <typename T>
    void operator()(T* object) const {
        destroy(object);
    }
};
using Settings = std::unique_ptr<fluid_settings_t, Destroy<delete_fluid_settings>>;
using Synth = std::unique_ptr<fluid_synth_t, Destroy<delete_fluid_synth>>;
using Player = std::unique_ptr<fluid_player_t, Destroy<delete_fluid_player>>;
using Driver = std::unique_ptr<fluid_audio_driver_t, Destroy<delete_fluid_audio_driver>>;

void set(fluid_settings_t* settings, const char* name, const QString& value) {
    fluid_settings_setstr(settings, name, value.toUtf8().constData());
}

Settings newSettings(const SoundOutput& output) {
    Settings settings(new_fluid_settings());
    fluid_settings_setint(settings.get(), "synth.dynamic-sample-loading", 1); // fonts may be large
    fluid_settings_setint(settings.get(), "synth.lock-memory", 0);
    fluid_settings_setnum(settings.get(), "synth.gain", 0.6);
    if (!output.file.isEmpty()) set(settings.get(), "audio.file.name", output.file);
    return settings;
}

bool loadSoundFont(fluid_synth_t* synth, const QStringList& fonts) {
    return std::any_of(fonts.begin(), fonts.end(), [synth](const QString& font) {
        const QByteArray name = QFile::encodeName(font);
        return fluid_is_soundfont(name) && fluid_synth_sfload(synth, name, 1) != FLUID_FAILED;
    });
}

/// The outputs worth trying. Those which are not there would take their time or write complaints to the
/// terminal, so that is looked up first.
QStringList outputs(const SoundOutput& wanted) {
    if (!wanted.driver.isEmpty()) return {wanted.driver};
#ifdef Q_OS_LINUX
    QStringList found;
    const QString server = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/pulse/native");
    if (qEnvironmentVariableIsSet("PULSE_SERVER") || QFile::exists(server))
        found << QStringLiteral("pulseaudio");
    const QDir devices(QStringLiteral("/dev/snd"));
    if (!devices.entryList({QStringLiteral("pcm*p")}, QDir::System).isEmpty())
        found << QStringLiteral("alsa");
    return found;
#else
    return {QString()}; // the library's own choice
#endif
}

Driver openOutput(fluid_settings_t* settings, fluid_synth_t* synth, const SoundOutput& wanted) {
    for (const QString& output : outputs(wanted)) {
        if (!output.isEmpty()) set(settings, "audio.driver", output);
        if (Driver driver{new_fluid_audio_driver(settings, synth)}) return driver;
    }
    return nullptr;
}

/// Until the song has come to its end and faded, or a stop is asked for.
void waitForEnd(const std::stop_token& stop, fluid_player_t* player) {
    std::mutex mutex;
    std::condition_variable_any asked;
    std::unique_lock lock(mutex);
    const auto never = [] { return false; };
    while (!stop.stop_requested() && fluid_player_get_status(player) == FLUID_PLAYER_PLAYING)
        asked.wait_for(lock, stop, 100ms, never);
    asked.wait_for(lock, stop, 2s, never);
}

void perform(const std::stop_token& stop, const MidiSong& song) {
    const Settings settings = newSettings(song.output);
    const Synth synth(new_fluid_synth(settings.get()));
    if (!synth || !loadSoundFont(synth.get(), song.soundFonts) || stop.stop_requested()) return;
    const Player player(new_fluid_player(synth.get()));
    if (!player ||
        fluid_player_add_mem(player.get(), song.file.constData(), size_t(song.file.size())) != FLUID_OK)
        return;
    // The samples that the device asks for are what moves the song on; before it is open no time passes.
    fluid_player_play(player.get());
    if (const Driver driver = openOutput(settings.get(), synth.get(), song.output))
        waitForEnd(stop, player.get());
    fluid_player_stop(player.get());
}

} // namespace

void FluidPlayer::play() {
    stop();
    thread_ = std::jthread([song = song_](const std::stop_token& stop) { perform(stop, song); });
}

void FluidPlayer::stop() {
    if (!thread_.joinable()) return;
    thread_.request_stop();
    thread_.join();
}

} // namespace zvonika
