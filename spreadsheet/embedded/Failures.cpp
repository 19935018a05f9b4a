#include "spreadsheet/embedded/Failures.h"

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "spreadsheet/embedded/Session.h"

#include <new>

namespace zvonika {

QString failureSentence(const std::exception& failure) {
    if (const auto* refusal = dynamic_cast<const RuntimeError*>(&failure)) return refusal->cause();
    if (dynamic_cast<const std::bad_alloc*>(&failure)) return QStringLiteral("Nestačí paměť počítače.");
    return QStringLiteral("V tabulce nastala neočekávaná chyba.");
}

bool runForUser(Dialogs& dialogs, const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const std::exception& failure) {
        dialogs.message({jmenoTabulky, failureSentence(failure), Icon::Exclamation});
        return false;
    }
}

} // namespace zvonika
