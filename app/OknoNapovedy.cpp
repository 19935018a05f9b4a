#include "app/OknoNapovedy.h"

#include "platform/ShownText.h"

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

Message otazkaVen(const QString& odkaz) {
    return {QStringLiteral("Nápověda"),
            QStringLiteral("Zobrazená stránka chce otevřít Váš poštovní program a začít v něm dopis:\n%1\n\n"
                           "Chcete to?")
                .arg(shownName(odkaz)),
            Icon::Question, Buttons::YesNo, Answer::No};
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
                            [&shell = prostredi_.shell](const QString& odkaz) { return shell.open(odkaz); },
                            [&dialogs = prostredi_.dialogs](const QString& odkaz) {
                                return dialogs.message(otazkaVen(odkaz)) == Answer::Yes;
                            }});
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
