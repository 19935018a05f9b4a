#pragma once

#include <QByteArrayView>

namespace zvonika {

/// Whether this is a whole Standard MIDI File 1.0 that a sequencer can play: header, time in ticks per
/// quarter note, all tracks that the header promises, and in each of them nothing but well-formed events.
/// What stands behind the last track does not matter.
bool isPlayableMidi(QByteArrayView file);

} // namespace zvonika
