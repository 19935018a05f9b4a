#include "aids/ui/FraZabrany.h"

#include "board/ui/Zabrana.h"

#include <QCheckBox>
#include <QLayout>
#include <QPainter>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyleOptionGroupBox>

namespace zvonika {

namespace {

constexpr int knoflikuVRade = 5;
constexpr int mezera = 6; // px at 96 dpi

const QColor drevo(112, 74, 48);
const QColor drazka(64, 40, 26);
const QColor lic(246, 239, 224);

/// Rows 2 and 4 stand half a button lower, as on the instrument.
bool jeNizsi(int rada) {
    return rada % 2 == 0;
}

} // namespace

FraZabrany::FraZabrany(const QString& popisek, QWidget* parent) : QGroupBox(popisek, parent) {
    setAccessibleName(popisek.section(QStringLiteral("   "), 0, 0));
    // From left to right, so that Tab follows the eye.
    for (int rada = pocetRad; rada >= 1; --rada)
        policka_.at(static_cast<std::size_t>(rada)) = vytvorPolicko(rada);
}

QCheckBox* FraZabrany::vytvorPolicko(int rada) {
    auto* policko = new QCheckBox(this);
    policko->setObjectName(QStringLiteral("chkZabrany(%1)").arg(rada));
    policko->setAccessibleName(QStringLiteral("Překrýt řadu %1").arg(rada));
    policko->setToolTip(policko->accessibleName() + QStringLiteral(" (Alt+%1)").arg(rada));
    auto* zkratka = new QShortcut(QKeySequence(Qt::ALT | Qt::Key(Qt::Key_0 + rada)), this);
    connect(zkratka, &QShortcut::activated, policko, &QCheckBox::click);
    auto* zabrana = new Zabrana(rada, this);
    zabrana->hide();
    zabrany_.at(static_cast<std::size_t>(rada)) = zabrana;
    connect(policko, &QCheckBox::toggled, zabrana, &QWidget::setVisible);
    connect(policko, &QCheckBox::toggled, this, [this, rada](bool ano) { Q_EMIT zmeneno(rada, ano); });
    return policko;
}

void FraZabrany::nastav(int rada, bool zaskrtnuto) {
    const QSignalBlocker ticho(this);
    policko(rada)->setChecked(zaskrtnuto);
}

int FraZabrany::stredCislice(int rada) const {
    QStyleOptionGroupBox volby;
    initStyleOption(&volby);
    const QRect titulek =
        style()->subControlRect(QStyle::CC_GroupBox, &volby, QStyle::SC_GroupBoxLabel, this);
    const QString text = title();
    const qsizetype misto = text.indexOf(QString::number(rada));
    const int vlevo = fontMetrics().horizontalAdvance(text.left(misto));
    return titulek.left() + vlevo + fontMetrics().horizontalAdvance(text.at(misto)) / 2;
}

int FraZabrany::vyskaTitulku() const {
    return fontMetrics().height() + mezera;
}

int FraZabrany::prumer() const {
    return (stredCislice(pocetRad - 1) - stredCislice(pocetRad)) * 4 / 5;
}

QRect FraZabrany::obrazRad() const {
    const int krok = stredCislice(pocetRad - 1) - stredCislice(pocetRad);
    const int vlevo = stredCislice(pocetRad) - krok / 2 - mezera;
    const int vpravo = stredCislice(1) + krok / 2 + mezera;
    const int nahore = vyskaTitulku() + policko(1)->sizeHint().height() + 2 * mezera;
    return {vlevo, nahore, vpravo - vlevo, krok * knoflikuVRade + krok / 2 + 2 * mezera};
}

QSize FraZabrany::sizeHint() const {
    const QRect obraz = obrazRad();
    const int vedle = layout() ? layout()->sizeHint().width() : 0;
    return {obraz.right() + vedle, obraz.bottom() + 2 * mezera};
}

void FraZabrany::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    const QRect obraz = obrazRad();
    const int krok = stredCislice(pocetRad - 1) - stredCislice(pocetRad);
    for (int rada = 1; rada <= pocetRad; ++rada) {
        const QSize velikost = policko(rada)->sizeHint();
        const int stred = stredCislice(rada);
        policko(rada)->setGeometry({{stred - velikost.width() / 2, vyskaTitulku() + mezera}, velikost});
        const int nahore = obraz.top() + mezera + (jeNizsi(rada) ? krok / 2 : 0);
        zabrany_.at(static_cast<std::size_t>(rada))
            ->setGeometry(stred - krok / 2 + 1, nahore, krok - 2, krok * knoflikuVRade);
    }
}

void FraZabrany::paintEvent(QPaintEvent* event) {
    QGroupBox::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(drevo);
    painter.drawRoundedRect(obrazRad(), mezera, mezera);
    for (int rada = 1; rada <= pocetRad; ++rada) {
        const QRectF pruh = zabrany_.at(static_cast<std::size_t>(rada))->geometry();
        painter.setBrush(drazka);
        painter.drawRoundedRect(pruh, pruh.width() / 2, pruh.width() / 2);
        painter.setBrush(lic);
        const qreal krok = pruh.height() / knoflikuVRade;
        for (int i = 0; i < knoflikuVRade; ++i)
            painter.drawEllipse(QPointF(pruh.center().x(), pruh.top() + (i + 0.5) * krok), prumer() / 2.0,
                                prumer() / 2.0);
    }
}

} // namespace zvonika
