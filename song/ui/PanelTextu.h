#pragma once

#include <QWidget>

#include <array>

namespace zvonika {

class ElidovanyPopisek;
class SongPanel;

/// The text panel of the shown grip, `panelTextu`: the syllables `lblSlabika(0)` to `lblSlabika(4)` around
/// the current one, `lblTony` and `lblBasy` with their captions `lblPopisD` and `lblPopisB`,
/// `lblStupnice`, and `lblStrana`, which says when the grip is shown on another side than it was recorded on.
class PanelTextu : public QWidget {
    Q_OBJECT
public:
    explicit PanelTextu(SongPanel& panel, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {247, 127}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void prevezmiZmenu();
    void ukazStranu();
    void rozmistiSlabiky(const QRect& misto);
    void rozmistiRadek(QWidget* popis, QWidget* obsah, const QRect& misto);
    int vyskaSlabik() const;

    SongPanel& panel_;
    std::array<ElidovanyPopisek*, 5> lblSlabika_{};
    ElidovanyPopisek *lblPopisD_, *lblTony_, *lblPopisB_, *lblBasy_, *lblStrana_, *lblStupnice_;
};

} // namespace zvonika
