#pragma once

#include <QColor>
#include <QPushButton>

#include <optional>
#include <vector>

namespace zvonika {

/// A command button of the main window: its caption wraps at blanks and shrinks before it would be clipped,
/// its face may carry a colour.
class PrikazoveTlacitko : public QPushButton {
public:
    enum class Vyznam { Bezny, Tah, Tlak, Hlavni };

    PrikazoveTlacitko(const QString& popisek, Vyznam vyznam, QWidget* parent = nullptr);

    /// Face colour; nothing for the usual one.
    void nastavBarvu(std::optional<QColor> barva);
    /// The drawn picture; it stands in the middle, or to the left of a caption.
    enum class Obrazek { Zadny, Sipka, Nota, Spustit, Zastavit };
    void nastavObrazek(Obrazek obrazek);
    /// Buttons that stand in one row or column with this one: their captions take the size that suits all,
    /// unless that would make long ones of short ones hard to read.
    void nastavSousedy(std::vector<PrikazoveTlacitko*> sousede) { sousede_ = std::move(sousede); }

protected:
    void paintEvent(QPaintEvent* event) override;
    QSize sizeHint() const override { return {20, 16}; }
    QSize minimumSizeHint() const override { return {8, 8}; }

private:
    QColor plocha() const;
    void kresliObrazek(QPainter& painter, const QRect& misto, const QColor& barva);
    void kresliPopisek(QPainter& painter, const QRect& misto, const QColor& barva);
    QRect mistoPopisku() const;
    int vlastniPismo();
    int spolecnePismo();

    /// The size in pixels that was fitted last, and what it was fitted to.
    struct Prizpusobene {
        int velikost = 0;
        QFont zaklad;
        QString text;
        QSize misto;
    };

    Vyznam vyznam_;
    Prizpusobene prizpusobene_;
    std::vector<PrikazoveTlacitko*> sousede_;
    std::optional<QColor> barva_;
    Obrazek obrazek_ = Obrazek::Zadny;
};

} // namespace zvonika
