#include "platform/media/FluidMedia.h"

#include "platform/files/RegularFile.h"
#include "platform/media/MidiFile.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

#include <optional>

namespace zvonika {

namespace {

constexpr qint64 largestSong = 16 << 20; // bytes; whatever is larger is no song

QString unquoted(const QString& name) {
    const bool quoted = name.size() > 1 && name.startsWith(u'"') && name.endsWith(u'"');
    return quoted ? name.sliced(1, name.size() - 2) : name;
}

QString deviceKey(const QString& name) {
    return unquoted(name).toCaseFolded();
}

std::optional<QByteArray> readSong(const QString& native) {
    const ReadBytes song = readRegular(native, Links::Follow, largestSong);
    return !song.trouble && isPlayableMidi(song.bytes) ? std::optional(song.bytes) : std::nullopt;
}

QString pluginFile(const QStringList& folders) {
    for (const QString& folder : folders)
        for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*zvonika_fluid.*")}))
            return file.absoluteFilePath();
    return {};
}

} // namespace

int FluidMedia::sendString(const QString& command) {
    const QString trimmed = command.trimmed();
    if (trimmed.isEmpty()) return mediaError::missingCommand;
    const QString verb = trimmed.section(u' ', 0, 0).toLower();
    const QString rest = trimmed.section(u' ', 1).trimmed();
    return verb == QLatin1String("open") ? open(rest) : control(verb, rest);
}

int FluidMedia::open(const QString& arguments) {
    // The name may contain blanks, and the word too: the last one counts.
    static const QString keyword = QStringLiteral(" type ");
    const qsizetype type = arguments.lastIndexOf(keyword, -1, Qt::CaseInsensitive);
    if (type < 0) return arguments.isEmpty() ? mediaError::missingDeviceName : mediaError::deviceTypeRequired;
    const QString device = arguments.sliced(type + keyword.size()).trimmed();
    if (device.compare(QLatin1String("sequencer"), Qt::CaseInsensitive) != 0)
        return mediaError::deviceNotInstalled;
    return openSequencer(arguments.first(type).trimmed());
}

int FluidMedia::openSequencer(const QString& name) {
    if (open_.contains(deviceKey(name))) return mediaError::duplicateAlias;
    const QString native = drive_.nativePath(unquoted(name));
    if (native.isEmpty() || !QFileInfo(native).isFile()) return mediaError::fileNotFound;
    const std::optional<QByteArray> song = readSong(native);
    if (!song) return mediaError::invalidFile;
    if (!players()) return mediaError::cannotLoadDriver;
    const QStringList fonts = soundFonts(places_.soundFontFolders);
    if (fonts.isEmpty()) return mediaError::noMidiPresent;
    open_.emplace(deviceKey(name), players_->newPlayer({*song, fonts, places_.output}));
    return 0;
}

int FluidMedia::control(const QString& verb, const QString& name) {
    static const QStringList verbs{QStringLiteral("play"), QStringLiteral("stop"), QStringLiteral("close")};
    const qsizetype known = verbs.indexOf(verb);
    if (known < 0) return mediaError::unrecognizedCommand;
    if (name.isEmpty()) return mediaError::missingDeviceName;
    const auto device = open_.find(deviceKey(name));
    if (device == open_.end()) return mediaError::invalidDeviceName;
    if (known == 0)
        device->second->play();
    else if (known == 1)
        device->second->stop();
    else
        open_.erase(device);
    return 0;
}

MidiPlayers* FluidMedia::players() {
    if (const QString file = pluginFile(places_.pluginFolders); !players_ && !file.isEmpty())
        players_ = qobject_cast<MidiPlayers*>(QPluginLoader(file).instance());
    return players_;
}

QStringList soundFonts(const QStringList& folders) {
    QStringList fonts;
    for (const QString& folder : folders) {
        const QFileInfoList found =
            QDir(folder).entryInfoList({QStringLiteral("*.sf2"), QStringLiteral("*.sf3")},
                                       QDir::Files | QDir::Readable, QDir::Size | QDir::Reversed);
        QStringList ordered;
        for (const QFileInfo& font : found)
            ordered.insert(font.baseName() == QLatin1String("default-GM") ? 0 : ordered.size(),
                           font.absoluteFilePath());
        fonts += ordered;
    }
    return fonts;
}

} // namespace zvonika
