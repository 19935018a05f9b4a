#pragma once

class QButtonGroup;
class QGroupBox;

namespace zvonika {

/// Fills a frame with one option per key, "optStupnice(0)" to "optStupnice(14)", each with its key signature:
/// sharp keys in one column, flat ones in the other. The ids of the group, which belongs to the frame, are
/// the indexes in `toniny`. Nothing is selected.
QButtonGroup* vytvorVolbyTonin(QGroupBox& ram);

} // namespace zvonika
