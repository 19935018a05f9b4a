#pragma once

class QDialog;
class QLabel;
class QPushButton;
class QString;
class QWidget;

namespace zvonika {

// What the program's dialogs are put together from. Names are control names; texts are shown as they stand.

QLabel* napis(const QString& jmeno, const QString& text);
/// Enter presses the focused button only; the dialog's default button is set by the dialog.
QPushButton* tlacitko(const QString& jmeno, const QString& text);

/// Names the dialog and makes it modal; it stays above a `parent` window that is kept on top.
void pripravDialog(QDialog& dialog, const QString& jmeno, const QString& titulek, const QWidget* parent);
/// Width at which the caption of a window is read whole beside its buttons.
int sirkaTitulku(const QDialog& dialog);

} // namespace zvonika
