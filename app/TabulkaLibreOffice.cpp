#include "app/TabulkaLibreOffice.h"

#include "app/ui/PrubehSpusteni.h"
#include "app/ui/UkazatelCekani.h"
#include "spreadsheet/journal/JournalledSpreadsheet.h"
#include "spreadsheet/libreoffice/LibreOfficeApplication.h"

#include <QGuiApplication>
#include <QScreen>

namespace zvonika {

namespace {

/// Calc counts in pixels of the screen.
QRect naObrazovce(const QRect& misto) {
    const QScreen* obrazovka = QGuiApplication::primaryScreen();
    const double pomer = obrazovka ? obrazovka->devicePixelRatio() : 1;
    return {(QPointF(misto.topLeft()) * pomer).toPoint(), (QSizeF(misto.size()) * pomer).toSize()};
}

} // namespace

/// What is shown of the waiting: a window at the start, the pointer later.
struct TabulkaLibreOffice::Prubeh {
    std::unique_ptr<PrubehSpusteni> okno;
    UkazatelCekani ukazatel;
};

TabulkaLibreOffice::TabulkaLibreOffice(Drive& drive, Dialogs& dialogs,
                                       std::unique_ptr<SettingsStore> nastaveni, const QString& profily,
                                       JournalFolder zaznamy)
    : drive_(drive), dialogs_(dialogs), nastaveni_(std::move(nastaveni)), profily_(profily),
      zaznamy_(std::move(zaznamy)), prubeh_(std::make_unique<Prubeh>()) {}

TabulkaLibreOffice::~TabulkaLibreOffice() = default;

std::unique_ptr<SpreadsheetApplication> TabulkaLibreOffice::spust() {
    if (!prubeh_->okno)
        prubeh_->okno = std::make_unique<PrubehSpusteni>(QStringLiteral("Spouští se LibreOffice Calc…"));
    try {
        LibreOfficeSurroundings okoli{drive_,      dialogs_,
                                      *nastaveni_, findLibreOffice(InstallationPlaces::usual()),
                                      profily_,    naObrazovce(misto_),
                                      {},          {}};
        okoli.sign = [this] { posun(); };
        okoli.signOver = [this] { prubeh_->ukazatel.konec(); };
        return std::make_unique<JournalledSpreadsheet>(std::make_unique<LibreOfficeApplication>(okoli),
                                                       dialogs_, jmenoCalcu, zaznamy_);
    } catch (...) {
        spusteno(); // the failure is told in a box, which nothing may cover
        throw;
    }
}

void TabulkaLibreOffice::spusteno() {
    prubeh_->okno.reset();
}

void TabulkaLibreOffice::posun() {
    prubeh_->okno ? prubeh_->okno->posun() : prubeh_->ukazatel.ceka();
}

NabidkaTabulky nabidkaLibreOffice() {
    const Installation nalezeny = findLibreOffice(InstallationPlaces::usual());
    return {Tabulka::LibreOffice, QStringLiteral("LibreOffice Calc %1").arg(nalezeny.version).trimmed(),
            QStringLiteral(
                "Písnička je otevřena přímo v Calcu. Zvonika si ho spouští sama s vlastním nastavením; "
                "vašich ostatních sešitů se to netýká."),
            nalezeny.missing};
}

} // namespace zvonika
