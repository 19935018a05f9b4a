#pragma once

#include <QDialog>

#include <array>

class QButtonGroup;
class QLabel;
class QPushButton;

namespace zvonika {

class FraZabrany;
class NastaveniRad;

/// The row restrictions `frmNastaveni`, modal. Reads the settings when it is made; Escape, the close box and
/// `cmdZrušit` store nothing.
class FrmNastaveni : public QDialog {
    Q_OBJECT
public:
    explicit FrmNastaveni(NastaveniRad& nastaveni, QWidget* parent = nullptr);

private:
    QWidget* postavTypy();
    QWidget* postavSloupce();
    QWidget* postavSloupec(int sloupec);
    QWidget* postavZabrany();
    QWidget* postavTlacitka();
    void obnov();

    NastaveniRad& nastaveni_;
    QButtonGroup* typy_;
    FraZabrany* fraZabrany_ = nullptr;
    std::array<QPushButton*, 3> tlacitka_{};
    std::array<QLabel*, 12> label1_{};
};

} // namespace zvonika
