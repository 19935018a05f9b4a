#pragma once

#include "board/ui/PodobaPrvku.h"

#include <QAbstractButton>

#include <memory>

namespace zvonika {

class ObrazyPrvku;
class OstrovFokusu;

/// A part of the instrument that is pressed. `clicked` comes with the press, from mouse, Space, Enter or
/// assistive technology; its checked state is the mark in the model and changes with the model only. However
/// quickly, each press is a click; where a double click means something, the part makes `dvojklik` of its
/// second press. F2 gives `dvojklik`. Arrow keys move the focus within the island.
class StiskaciPrvek : public QAbstractButton {
    Q_OBJECT
public:
    StiskaciPrvek(int cislo, std::shared_ptr<ObrazyPrvku> obrazy, QWidget* parent);

    int cislo() const { return cislo_; }
    /// The island must outlive the part's use of the keyboard.
    void vlozDoOstrova(std::shared_ptr<OstrovFokusu> ostrov);
    void nastavZastavku(); ///< see `OstrovFokusu::vstup`
    QSize sizeHint() const override { return {40, 38}; }

Q_SIGNALS:
    void dvojklik();

protected:
    /// Applies what the model says: mark for checked, words for assistive technology, picture.
    void prevezmi(const PodobaPrvku& podoba, bool oznacen);
    const PodobaPrvku& podoba() const { return podoba_; }
    void kresliObraz(QPainter& painter, const QRect& misto);
    void kresliZamereni(QPainter& painter, const QRectF& obrys, qreal polomer) const;

    /// The second press of a double click.
    virtual void druhyStisk() { click(); }

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void nextCheckState() override {}
    void checkStateSet() override;

private:
    void nastavZaskrtnuti(bool zaskrtnuty);

    int cislo_;
    std::shared_ptr<ObrazyPrvku> obrazy_;
    std::shared_ptr<OstrovFokusu> ostrov_;
    PodobaPrvku podoba_;
    bool prebira_ = false; ///< the checked state is being taken over from the model
};

/// "volný", "označený", "tah", "tlak" or "interval"; with "označený" behind when marked under another
/// picture.
QString slovyStav(VyznamPrvku vyznam, bool oznacen);

} // namespace zvonika
