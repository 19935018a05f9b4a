#include "app/OknoNapovedy.h"

#include <QDir>
#include <QScopeGuard>
#include <QScreen>

namespace zvonika {

namespace {

const QString prirucka = QStringLiteral("Tamík.htm");
constexpr QSize pohodlnaVelikost(1000, 800);

/// Where the main window stood, as high as the screen allows.
QRect misto(const QWidget& hlavni) {
    const QRect obrazovka = hlavni.screen()->availableGeometry();
    QRect okno({}, pohodlnaVelikost.boundedTo(obrazovka.size() - QSize(40, 60)));
    okno.moveCenter(obrazovka.center());
    return okno;
}

} // namespace

OknoNapovedy::~OknoNapovedy() {
    if (!okno_) return;
    okno_->disconnect(); // the main window is going too
    delete okno_;
}

void OknoNapovedy::mnuhtm(QWidget& hlavni) {
    hlavni.hide();
    auto zpatky = qScopeGuard([&hlavni] { hlavni.show(); });
    okno_ = otevri(hlavni);
    zpatky.dismiss();
}

FrmBrowser* OknoNapovedy::otevri(QWidget& hlavni) {
    const QDir slozka(prostredi_.drive.programFolder());
    const QUrl adresa = QUrl::fromLocalFile(slozka.filePath(prirucka));
    auto okno = std::make_unique<FrmBrowser>(
        ProstrediProhlizece{prostredi_.tvurceProhlizece, slozka.absolutePath(), adresa,
                            [&shell = prostredi_.shell](const QString& odkaz) { return shell.open(odkaz); }});
    okno->setAttribute(Qt::WA_DeleteOnClose);
    okno->setGeometry(misto(hlavni));
    okno->show();
    okno->prejdi(adresa);
    QObject::connect(okno.get(), &FrmBrowser::zavreno, &hlavni, [&hlavni] {
        hlavni.show();
        hlavni.activateWindow();
    });
    return okno.release();
}

} // namespace zvonika
