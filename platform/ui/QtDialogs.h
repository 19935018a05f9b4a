#pragma once

#include "platform/Dialogs.h"

#include <QPointer>
#include <QWidget>

class QDialog;

namespace zvonika {

/// The boxes of the program on the screen, in Czech. A box belongs to the window the user works in, or to the
/// main window, and stays above a window that is kept on top. Their object names are "zprava", "vstup",
/// "vyberSouboru".
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(QWidget* mainWindow = nullptr) : mainWindow_(mainWindow) {}

    void setMainWindow(QWidget* mainWindow) { mainWindow_ = mainWindow; }

    Answer message(const Message& message) override;
    QString input(const QString& title, const QString& prompt) override;
    std::optional<QString> openFile(const QString& title, const QString& filter,
                                    const QString& folder) override;
    std::optional<QString> saveFile(const QString& title, const QString& filter,
                                    const QString& suggested) override;

private:
    QWidget* parentWindow() const;
    void prepare(QDialog& dialog, const QString& name, const QString& title) const;

    QPointer<QWidget> mainWindow_;
};

} // namespace zvonika
