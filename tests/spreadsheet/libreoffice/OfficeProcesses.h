#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <sys/types.h>

namespace zvonika::testing {

/// The processes of offices whose profiles lie in `profiles`: soffice.bin itself and its guardians.
QList<pid_t> officesOf(const QString& profiles);
QList<pid_t> guardiansOf(const QString& profiles);
/// True once neither is left.
bool allGone(const QString& profiles);
/// What is left in a folder of what an office makes for itself: lock files.
QStringList locksIn(const QString& folder);

} // namespace zvonika::testing
