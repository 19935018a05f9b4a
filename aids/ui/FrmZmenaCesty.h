#pragma once

#include <QDialog>

class QButtonGroup;
class QGridLayout;
class QLineEdit;

namespace zvonika {

class ZmenaCesty;

/// The default folder dialog `frmZmenaCesty`, modal. Nothing is selected at first; typing a folder selects
/// the option that it belongs to. Escape, the close box and `CancelButton` change nothing.
class FrmZmenaCesty : public QDialog {
    Q_OBJECT
public:
    explicit FrmZmenaCesty(ZmenaCesty& zmena, QWidget* parent = nullptr);

private:
    QWidget* postavSoucasnou();
    QWidget* postavVolby();
    QWidget* postavTlacitka();
    void pridejVolbu(QGridLayout& mrizka, int i);
    void OKButton();

    ZmenaCesty& zmena_;
    QButtonGroup* Option1_;
    QLineEdit* txtCesta_;
};

} // namespace zvonika
