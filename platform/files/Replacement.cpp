#include "platform/files/Replacement.h"

#include "platform/files/Patience.h"
#include "platform/files/WindowsErrors.h"

namespace zvonika {

namespace {

unsigned long attempt(DiskSteps& disk, const QString& target, const QString& fresh, const QString& backup) {
    if (!disk.exists(target)) return disk.move(fresh, target, false);
    const unsigned long error = disk.replace(target, fresh, backup);
    return isUnknownToDisk(error) && disk.exists(target) ? disk.move(fresh, target, true) : error;
}

} // namespace

unsigned long putInPlace(DiskSteps& disk, const Patience& patience, const QString& target,
                         const QString& fresh, const QString& backup) {
    const bool replaces = disk.exists(target);
    const auto moved = [&](const QString& from) {
        return patience.ask([&] { return disk.move(from, target, false); }) == 0;
    };
    const unsigned long error = patience.ask([&] { return attempt(disk, target, fresh, backup); });
    const bool lost = error != 0 && replaces && !disk.exists(target);
    // The old file has lost its name, and the new one is complete.
    if (error == 0 || (lost && moved(fresh))) {
        disk.remove(backup);
        return 0;
    }
    if (!lost || moved(backup)) disk.remove(fresh);
    return error;
}

} // namespace zvonika
