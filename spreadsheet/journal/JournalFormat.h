#pragma once

#include "spreadsheet/journal/JournalEntry.h"

#include <QByteArray>

#include <optional>
#include <variant>

namespace zvonika {

/// The file format of a recovery journal, version 1.
///
///     file    = signature frame*          the first frame is a Base, and the only one of its kind
///     signature = "ZVJ1" 0D 0A 1A 0A
///     frame   = length:u32 checksum:u32 payload    length: bytes of the payload;
///                                         checksum: CRC-32 (ISO-HDLC) of the payload
///     payload = number:u32 type:u8 ...    number: 0 for the Base, one more with each frame
///       type 1, Base:  path:text name:text hash:bytes
///       type 2, Group: time:i64 count:u32 change*     time: milliseconds since 1970-01-01 UTC
///       type 3, Save:  path:text hash:bytes
///     change  = kind:u8 sheet:u16 ...
///       kind 1, cell written:            row:u32 column:u16 value
///       kind 2, cell as in its file:     row:u32 column:u16 value
///       kind 3, row inserted:            row:u32
///       kind 4, row deleted:             row:u32
///       kind 5, sheet renamed:           name:text
///       kind 6, column resized:          column:u16 width:f64
///     value   = tag:u8, then: 0 nothing; 1 number:f64; 2 truth:u8; 3 error:text; 4 text:text
///     text    = length:u32 (bytes, FFFFFFFF for none) UTF-16
///     bytes   = length:u32 (FFFFFFFF for none) byte*
///
/// All numbers are big-endian (QDataStream, version Qt 6.0). Files only grow: what a crash leaves behind is
/// whole frames and at most one torn frame at the end, which length, checksum or number give away.
namespace journalformat {

QByteArray signature();
QByteArray encoded(quint32 number, const JournalBase& base);
QByteArray encoded(quint32 number, const JournalGroup& group);
QByteArray encoded(quint32 number, const JournalSave& save);

using Entry = std::variant<JournalBase, JournalGroup, JournalSave>;

/// The frame at `offset` of a file's bytes, which must carry this number; moves `offset` behind it. Nothing,
/// with `offset` as it was, at the end and where the frame is torn or damaged.
std::optional<Entry> decoded(const QByteArray& file, qsizetype& offset, quint32 number);

} // namespace journalformat

} // namespace zvonika
