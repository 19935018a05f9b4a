#pragma once

#include <QGroupBox>

#include <array>

class QCheckBox;

namespace zvonika {

class Zabrana;

/// The frame of the boxes `chkZabrany(1..5)`, one per row, from row 5 on the left to row 1 on the right. Each
/// box stands under its number in the frame's caption, over a picture of its row that is barred while the box
/// is ticked. Alt and the number tick it too.
class FraZabrany : public QGroupBox {
    Q_OBJECT
public:
    explicit FraZabrany(const QString& popisek, QWidget* parent = nullptr);

    void nastav(int rada, bool zaskrtnuto); ///< no signal
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void zmeneno(int rada, bool zaskrtnuto); ///< the user ticked or unticked a box

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    static constexpr int pocetRad = 5;

    QCheckBox* vytvorPolicko(int rada);
    QCheckBox* policko(int rada) const { return policka_.at(static_cast<std::size_t>(rada)); }
    int stredCislice(int rada) const;
    int vyskaTitulku() const;
    QRect obrazRad() const; ///< the little board under the boxes
    int prumer() const;     ///< of its buttons

    std::array<QCheckBox*, pocetRad + 1> policka_{};
    std::array<Zabrana*, pocetRad + 1> zabrany_{};
};

} // namespace zvonika
