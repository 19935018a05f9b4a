#include "platform/media/MidiFile.h"

#include <optional>

namespace zvonika {

namespace {

/// Reads forward; what would go beyond the end fails, and then everything after it.
class Reader {
public:
    explicit Reader(QByteArrayView bytes) : rest_(bytes) {}

    bool failed() const { return failed_; }
    bool atEnd() const { return failed_ || rest_.isEmpty(); }

    QByteArrayView take(quint32 count) {
        if (failed_ || count > quint64(rest_.size())) {
            failed_ = true;
            return {};
        }
        const QByteArrayView taken = rest_.first(count);
        rest_ = rest_.sliced(count);
        return taken;
    }
    /// Big-endian number of up to four bytes.
    quint32 number(quint32 count) {
        quint32 value = 0;
        for (const char byte : take(count))
            value = value << 8 | quint8(byte);
        return value;
    }
    /// Seven bits a byte, the last one without the top bit; four bytes at most.
    quint32 variableLength() {
        quint32 value = 0;
        for (int i = 0; i < 4; ++i) {
            const quint32 byte = number(1);
            value = value << 7 | (byte & 0x7F);
            if (byte < 0x80) return value;
        }
        failed_ = true;
        return 0;
    }
    quint32 peek() const { return atEnd() ? 0 : quint8(rest_.front()); }
    void fail() { failed_ = true; }

private:
    QByteArrayView rest_;
    bool failed_ = false;
};

constexpr quint32 sysex = 0xF0, sysexContinued = 0xF7, metaEvent = 0xFF, firstSystem = 0xF0;

void readChannelMessage(Reader& track, quint32 status) {
    const bool oneByte = status >= 0xC0 && status < 0xE0; // programme change, channel pressure
    for (const char byte : track.take(oneByte ? 1 : 2))
        if (quint8(byte) >= 0x80) track.fail();
}

/// Reads one event behind its time; `status` is the running status, 0 where there is none.
void readEvent(Reader& track, quint32& status) {
    quint32 first = track.peek();
    if (first >= 0x80)
        track.take(1);
    else
        first = status;
    if (first < 0x80) {
        track.fail();
    } else if (first < firstSystem) {
        status = first;
        readChannelMessage(track, first);
    } else {
        status = 0; // system and meta events end a running status
        if (first == metaEvent)
            track.take(1);
        else if (first != sysex && first != sysexContinued)
            track.fail();
        track.take(track.variableLength());
    }
}

bool isTrack(QByteArrayView bytes) {
    Reader track(bytes);
    quint32 status = 0;
    while (!track.atEnd()) {
        track.variableLength();
        readEvent(track, status);
    }
    return !track.failed();
}

/// Number of tracks, or nothing when the header is not that of a playable file.
std::optional<quint32> readHeader(Reader& file) {
    if (file.take(4) != "MThd") return std::nullopt;
    Reader header(file.take(file.number(4)));
    const quint32 format = header.number(2);
    const quint32 tracks = header.number(2);
    const quint32 division = header.number(2);
    const bool ticks = division != 0 && division < 0x8000; // otherwise frames of a film
    if (header.failed() || format > 2 || tracks == 0 || !ticks) return std::nullopt;
    return tracks;
}

} // namespace

bool isPlayableMidi(QByteArrayView bytes) {
    Reader file(bytes);
    const std::optional<quint32> promised = readHeader(file);
    if (!promised) return false;
    for (quint32 tracks = 0; tracks < *promised;) {
        const bool track = file.take(4) == "MTrk"; // other chunks may stand between the tracks
        const QByteArrayView chunk = file.take(file.number(4));
        if (file.failed() || (track && !isTrack(chunk))) return false;
        tracks += track;
    }
    return true;
}

} // namespace zvonika
