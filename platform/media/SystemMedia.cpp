#include "platform/media/SystemMedia.h"

#ifdef Q_OS_WIN
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
    int sendString(const QString& command) override {
        return static_cast<int>(
            mciSendStringW(reinterpret_cast<const wchar_t*>(command.utf16()), nullptr, 0, nullptr));
    }
};

} // namespace

std::unique_ptr<Media> systemMedia(const Drive&, const QStringList&) {
    return std::make_unique<WindowsMedia>();
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
