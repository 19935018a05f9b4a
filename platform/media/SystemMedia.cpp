#include "platform/media/SystemMedia.h"

#ifdef Q_OS_WIN
#include "platform/media/MediaCommand.h"

#include <windows.h>
// after windows.h, which it needs
#include <mmsystem.h>
#else
#include "platform/media/FluidMedia.h"
#endif

namespace zvonika {

#ifdef Q_OS_WIN

namespace {

class WindowsMedia : public Media {
public:
    explicit WindowsMedia(const Drive& drive) : drive_(drive) {}
    int sendString(const QString& command) override {
        const QString text = systemCommand(command, drive_);
        return static_cast<int>(
            mciSendStringW(reinterpret_cast<const wchar_t*>(text.utf16()), nullptr, 0, nullptr));
    }

private:
    const Drive& drive_;
};

} // namespace

std::unique_ptr<Media> systemMedia(const Drive& drive, const QStringList&) {
    return std::make_unique<WindowsMedia>(drive);
}

#else

std::unique_ptr<Media> systemMedia(const Drive& drive, const QStringList& pluginFolders) {
    SoundPlaces places;
    places.pluginFolders = pluginFolders;
    for (const char* folder : {"sf2", "sf3"})
        places.soundFontFolders << QStringLiteral("/usr/share/sounds/") + QLatin1String(folder);
    places.soundFontFolders << QStringLiteral("/usr/share/soundfonts");
    return std::make_unique<FluidMedia>(drive, places);
}

#endif

} // namespace zvonika
