#pragma once

#include <QDialog>

#include <functional>

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace zvonika {

class Konverze;
class StavKonverze;

/// The conversion dialog `frmKonverze`, modal and above all other windows. It shows `stav` and hands clicks
/// to `konverze`, whose Form_Load and Form_Unload are the caller's. Escape and the close box do what
/// `cmdKonec` does: during a run they stop it.
class FrmKonverze : public QDialog {
    Q_OBJECT
public:
    /// Runs a click's procedure and catches what it throws.
    using Udalost = std::function<void(const std::function<void()>&)>;

    FrmKonverze(Konverze& konverze, StavKonverze& stav, Udalost udalost, QWidget* parent = nullptr);

    void reject() override;

private:
    QWidget* postavZdroj();
    QWidget* postavCil();
    QWidget* postavTlacitka();
    QPushButton* prikaz(const QString& jmeno, const QString& popisek, void (Konverze::*procedura)());
    void ukaz();
    void ukazZdroj();
    void ukazBeh();
    void zamerVolbu();

    Konverze& konverze_;
    StavKonverze& stav_;
    Udalost udalost_;
    QButtonGroup* optStupnice_ = nullptr;
    QCheckBox* check1_ = nullptr;
    QGroupBox* frame1_ = nullptr;
    QLabel *label1_ = nullptr, *lblStupnice_ = nullptr, *lblLadeni_ = nullptr, *lblKonec_ = nullptr,
           *lblPrubeh_ = nullptr;
    QPushButton *cmdVyberPisen_ = nullptr, *cmdGo_ = nullptr, *cmdPokracovat_ = nullptr;
    bool cekal_ = false; ///< what was shown last was a run waiting for another key
};

} // namespace zvonika
