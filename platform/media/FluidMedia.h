#pragma once

#include "platform/Drive.h"
#include "platform/Media.h"
#include "platform/media/MidiPlayer.h"

#include <map>

namespace zvonika {

/// What plays a MIDI song and where it is found.
struct SoundPlaces {
    QStringList pluginFolders;    ///< native folders, the first that holds the plug-in counts
    QStringList soundFontFolders; ///< native folders, searched in this order
    SoundOutput output;
};

/// The command strings where the system has none: the device type "sequencer" plays MIDI files through a
/// plug-in that is loaded when the first one is opened. A device is addressed by the file's name as it was
/// opened, capitals or not; playing again begins from the start.
class FluidMedia : public Media {
public:
    FluidMedia(const Drive& drive, const SoundPlaces& places) : drive_(drive), places_(places) {}

    int sendString(const QString& command) override;

private:
    using Devices = std::map<QString, std::unique_ptr<MidiPlayer>>;

    int open(const QString& arguments);
    int openSequencer(const QString& name);
    int control(const QString& verb, const QString& name);
    MidiPlayers* players();

    const Drive& drive_;
    SoundPlaces places_;
    MidiPlayers* players_ = nullptr;
    Devices open_;
};

/// The sound fonts of these folders (.sf2, .sf3), native: of each folder the one that the system has made its
/// default comes first, then the others from the smallest to the largest.
QStringList soundFonts(const QStringList& folders);

} // namespace zvonika
