#pragma once

#include "aids/ui/Prohlizec.h"

#include <QMainWindow>
#include <QTimer>

class QComboBox;
class QLabel;

namespace zvonika {

class HledaniNaStrance;

/// What the help window needs from outside.
struct ProstrediProhlizece {
    TvurceProhlizece tvurce;
    QString slozkaPrirucky; ///< native; files are shown only from here
    QUrl domov;             ///< the page of the button "Home"
    std::function<bool(const QString& odkaz)>
        otevriVen; ///< hands a link to the user's own program; false: none
    std::function<bool(const QString& odkaz)>
        smiVen; ///< asks the user whether it may, where a page leads there by itself
};

/// The help window `frmBrowser`: toolbar, address line and a browser control. While a page is being loaded
/// its caption is "Working...", then the page's title.
class FrmBrowser : public QMainWindow, private SledovaniProhlizece {
    Q_OBJECT
public:
    /// Form load: the window is laid out; where `StartingAddress` is not empty, it is navigated to.
    explicit FrmBrowser(const ProstrediProhlizece& prostredi, const QString& StartingAddress = {},
                        QWidget* parent = nullptr);
    ~FrmBrowser() override;

    void prejdi(const QUrl& adresa);

Q_SIGNALS:
    /// Form unload: emitted once, however the window comes to its end.
    void zavreno();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* cil, QEvent* udalost) override;

private:
    struct TlacitkoListy;
    static const QVector<TlacitkoListy>& tlacitka();

    void postavListu();
    void postavAdresu();
    void postavStranku();
    void postavStav(const QString& duvodNahrady);
    void tbToolBar_ButtonClick(const QString& klic);
    void cboAddress_Click();
    void timTimer_Timer();
    void konec();
    void predejVen(const QUrl& adresa);
    void zeptejSe(const QUrl& adresa);

    void prejito(const QUrl& adresa) override;
    void historieZmenena() override;
    void odkazVen(const QUrl& adresa, bool zvoleny) override;
    void oznameno(const QString& veta) override;
    void nalezeno(int kolikaty, int celkem) override;

    ProstrediProhlizece prostredi_;
    PovoleneAdresy povolene_;
    QTimer timTimer_;
    QComboBox* cboAddress_ = nullptr;
    HledaniNaStrance* hledani_ = nullptr;
    QLabel* lblStav_ = nullptr;
    Prohlizec* brwWebBrowser_ = nullptr;
    bool skoncil_ = false;
    bool bezOtazek_ = false; ///< a question is up, or one was answered no and the user has gone nowhere since
};

} // namespace zvonika
