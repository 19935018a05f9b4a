#pragma once

#include <QString>

namespace zvonika {

class Patience;

/// What a disk of Windows is asked for. Each gives the system's error number, 0 when it is done.
class DiskSteps {
public:
    virtual ~DiskSteps() = default;
    virtual bool exists(const QString& path) = 0;
    /// `fresh` gets the name and the rights of `target`, which is called `backup` from then on. When it fails
    /// half-way, `target` may be without its name.
    virtual unsigned long replace(const QString& target, const QString& fresh, const QString& backup) = 0;
    /// Gives a file another name; where there is such a file, only when it may be `over` it.
    virtual unsigned long move(const QString& from, const QString& to, bool over) = 0;
    virtual void remove(const QString& path) = 0;
};

/// Puts a complete file in the place of another, or where none is, and clears away what is not needed any
/// more. Whatever fails: `target` holds the new contents (0 is returned) or the old ones. Where the disk does
/// not even allow that, both files stay, `fresh` and `backup`.
unsigned long putInPlace(DiskSteps& disk, const Patience& patience, const QString& target,
                         const QString& fresh, const QString& backup);

} // namespace zvonika
