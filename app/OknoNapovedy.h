#pragma once

#include "aids/ui/FrmBrowser.h"
#include "app/Prostredi.h"

#include <QPointer>

namespace zvonika {

/// The help window and the main window taking turns: the main window is hidden while the help is up and
/// comes back with its end, whatever ended it.
class OknoNapovedy {
public:
    explicit OknoNapovedy(const Prostredi& prostredi) : prostredi_(prostredi) {}
    ~OknoNapovedy();
    OknoNapovedy(const OknoNapovedy&) = delete;
    OknoNapovedy& operator=(const OknoNapovedy&) = delete;

    /// Hides `hlavni` and shows the manual.
    void mnuhtm(QWidget& hlavni);
    bool otevrena() const { return !okno_.isNull(); }
    QWidget* okno() const { return okno_; }

private:
    FrmBrowser* otevri(QWidget& hlavni);

    const Prostredi& prostredi_;
    QPointer<FrmBrowser> okno_;
};

} // namespace zvonika
