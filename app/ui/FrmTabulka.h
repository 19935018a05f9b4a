#pragma once

#include "app/VolbaTabulky.h"

#include <QDialog>

class QButtonGroup;
class QGridLayout;

namespace zvonika {

/// The dialog of the spreadsheet program `frmTabulka`, modal: what there is, what there is not and why. OK
/// stores the choice, Escape, the close box and Storno change nothing.
class FrmTabulka : public QDialog {
    Q_OBJECT
public:
    /// `nabidka` holds the built-in spreadsheet at least; it stands for a choice that is not offered.
    FrmTabulka(VolbaTabulky& volba, const QVector<NabidkaTabulky>& nabidka, QWidget* parent = nullptr);

private:
    QWidget* postavVolby(const QVector<NabidkaTabulky>& nabidka);
    void pridejVolbu(QGridLayout& mrizka, const NabidkaTabulky& nabidka);
    QWidget* postavTlacitka();

    VolbaTabulky& volba_;
    QButtonGroup* optTabulka_;
};

} // namespace zvonika
