#include "theory/ui/PaletaZnamenek.h"

#include "theory/ui/OsnovaPainter.h"
#include "theory/ui/Znacky.h"

#include <QButtonGroup>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace zvonika {

namespace {

struct Volba {
    Znamenko znamenko;
    QString jmeno, popis;
};

const std::array<Volba, 4>& volby() {
    static const std::array<Volba, 4> tabulka{{
        {Znamenko::Zadne, QStringLiteral("picNota"), QStringLiteral("Nota")},
        {Znamenko::Krizek, QStringLiteral("picKrizek"), QStringLiteral("Křížek")},
        {Znamenko::Becko, QStringLiteral("picBecko"), QStringLiteral("Béčko")},
        {Znamenko::Odrazka, QStringLiteral("picOdrazka"), QStringLiteral("Odrážka")},
    }};
    return tabulka;
}

constexpr QColor zvoleny{255, 226, 160};
constexpr QColor zvolenyOkraj{178, 120, 20};
constexpr QColor podMysi{246, 240, 226};

} // namespace

TlacitkoZnacky::TlacitkoZnacky(Znamenko znamenko, const QString& jmeno, const QString& popis, QWidget* parent)
    : QToolButton(parent), znamenko_(znamenko) {
    setObjectName(jmeno);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(popis);
    setToolTip(popis);
}

void TlacitkoZnacky::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plocha = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(isChecked() ? zvolenyOkraj : barvyOsnovy::okraj, isChecked() ? 1.6 : 1));
    painter.setBrush(isChecked() ? zvoleny : underMouse() ? podMysi : barvyOsnovy::papir);
    painter.drawRoundedRect(plocha, 3, 3);
    if (hasFocus()) {
        painter.setPen(QPen(barvyOsnovy::inkoust, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(plocha.adjusted(2, 2, -2, -2), 2, 2);
    }
    const QPainterPath* znamenko = znackaZnamenka(znamenko_);
    const QPainterPath& znacka = znamenko ? *znamenko : znacky::hlavicka();
    const QRectF rozmer = znacka.boundingRect();
    const double meritko = std::min((plocha.height() - 5) / 3.0, (plocha.width() - 4) / 1.5);
    painter.translate(plocha.center());
    painter.scale(meritko, meritko);
    painter.translate(-rozmer.center());
    painter.fillPath(znacka, isEnabled() ? barvyOsnovy::inkoust : barvyOsnovy::linka);
}

PaletaZnamenek::PaletaZnamenek(QWidget* parent) : QWidget(parent), skupina_(new QButtonGroup(this)) {
    for (const Volba& volba : volby())
        skupina_->addButton(new TlacitkoZnacky(volba.znamenko, volba.jmeno, volba.popis, this),
                            static_cast<int>(volba.znamenko));
    skupina_->button(static_cast<int>(Znamenko::Zadne))->setChecked(true);
    connect(skupina_, &QButtonGroup::idToggled, this, &PaletaZnamenek::zmeneno);
}

Znamenko PaletaZnamenek::zvolene() const {
    return static_cast<Znamenko>(skupina_->checkedId());
}

void PaletaZnamenek::resizeEvent(QResizeEvent*) {
    const auto tlacitka = skupina_->buttons();
    const auto pocet = static_cast<int>(tlacitka.size());
    for (int i = 0; i < pocet; ++i) {
        const int vlevo = width() * i / pocet;
        tlacitka[i]->setGeometry(vlevo, 0, width() * (i + 1) / pocet - vlevo - 1, height());
    }
}

} // namespace zvonika
