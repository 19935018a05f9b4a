#include "platform/files/UserName.h"

#ifdef Q_OS_WIN
#include <lmcons.h>
#include <windows.h>
#endif

namespace zvonika {

QString userOfFiles() {
#ifdef Q_OS_WIN
    wchar_t name[UNLEN + 1];
    DWORD size = UNLEN + 1;
    if (GetUserNameW(name, &size)) return QString::fromWCharArray(name).simplified();
#endif
    return {};
}

} // namespace zvonika
