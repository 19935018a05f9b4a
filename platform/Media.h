#pragma once

#include <QString>

namespace zvonika {

/// Error codes of multimedia command strings, with the values of the interface that Windows has for them
/// (MCIERR_...).
namespace mediaError {
constexpr int unrecognizedCommand = 261;
constexpr int invalidDeviceName = 263; ///< nothing of that name is open
constexpr int cannotLoadDriver = 266;  ///< what plays the sound is not installed
constexpr int missingCommand = 267;    ///< empty command string
constexpr int fileNotFound = 275;
constexpr int deviceTypeRequired = 287;
constexpr int duplicateAlias = 289; ///< open already
constexpr int missingDeviceName = 292;
constexpr int invalidFile = 296;        ///< not a file of that device type, or damaged
constexpr int deviceNotInstalled = 306; ///< an unknown device type
constexpr int noMidiPresent = 343;      ///< no sound font is installed
} // namespace mediaError

/// The multimedia command strings of the system.
class Media {
public:
    virtual ~Media() = default;

    /// Sends one command string, "open NAME type sequencer", "play NAME", "stop NAME" or "close NAME", with a
    /// return buffer of length 0 and no callback window. NAME is a file as `Drive` understands it and may
    /// contain blanks. Returns at once, playing goes on in the background. 0, or the error code; nothing is
    /// raised and no box shown.
    virtual int sendString(const QString& command) = 0;
};

} // namespace zvonika
