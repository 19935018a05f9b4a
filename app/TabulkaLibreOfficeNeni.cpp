// Where LibreOffice cannot be driven.
#include "app/TabulkaLibreOffice.h"

namespace zvonika {

struct TabulkaLibreOffice::Prubeh {};

TabulkaLibreOffice::TabulkaLibreOffice(Drive& drive, Dialogs& dialogs,
                                       std::unique_ptr<SettingsStore> nastaveni, const QString& profily,
                                       JournalFolder zaznamy)
    : drive_(drive), dialogs_(dialogs), nastaveni_(std::move(nastaveni)), profily_(profily),
      zaznamy_(std::move(zaznamy)) {}

TabulkaLibreOffice::~TabulkaLibreOffice() = default;

std::unique_ptr<SpreadsheetApplication> TabulkaLibreOffice::spust() {
    throw AutomationError(error::cannotCreateObject, nabidkaLibreOffice().prekazka);
}

void TabulkaLibreOffice::spusteno() {}

NabidkaTabulky nabidkaLibreOffice() {
    return {Tabulka::LibreOffice, QStringLiteral("LibreOffice Calc"),
            QStringLiteral("Písnička je otevřena přímo v Calcu."),
            QStringLiteral("V tomto systému Zvonika LibreOffice řídit neumí.")};
}

} // namespace zvonika
