#pragma once

#include "aids/ui/Prohlizec.h"

#include <QWebEnginePage>

namespace zvonika {

/// A page that keeps to itself: it goes only where it is allowed, opens no windows and boxes, chooses no
/// files and is given no permission.
class StrankaWebu : public QWebEnginePage {
    Q_OBJECT
public:
    StrankaWebu(QWebEngineProfile* profil, const MistoProhlizece& misto, QObject* rodic);

    /// Whether the page may go there; where it may not, the address is handed on or the user is told.
    /// `zvolena`: the user has typed it or clicked on it.
    bool smi(const QUrl& adresa, bool zvolena);

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage* createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

private:
    void omezPravaStranky();
    void odmitejZadosti();

    const PovoleneAdresy& povolene_;
    SledovaniProhlizece& sledovani_;
    bool naCeste_ = false; ///< an address has been let in and is not there yet
};

} // namespace zvonika
