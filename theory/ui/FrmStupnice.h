#pragma once

#include <QDialog>

#include <optional>

class QButtonGroup;

namespace zvonika {

class Tonina;
class VolbaStupnice;

/// The key dialog `frmStupnice`, modal. The current key is selected where it is one of those offered. Escape
/// and the close box change nothing. It stays above a parent window that is kept on top.
class FrmStupnice : public QDialog {
    Q_OBJECT
public:
    FrmStupnice(VolbaStupnice& volba, const Tonina& tonina, QWidget* parent = nullptr);

private:
    QWidget* postavRam(const Tonina& tonina);
    QWidget* postavTlacitka();
    std::optional<int> vybrana() const;

    VolbaStupnice& volba_;
    QButtonGroup* optStupnice_ = nullptr;
};

} // namespace zvonika
