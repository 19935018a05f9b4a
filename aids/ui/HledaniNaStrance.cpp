#include "aids/ui/HledaniNaStrance.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace zvonika {

namespace {

QToolButton* tlacitko(const QString& jmeno, Qt::ArrowType sipka, const QString& popis) {
    auto* nove = new QToolButton;
    nove->setObjectName(jmeno);
    nove->setArrowType(sipka);
    nove->setAutoRaise(true);
    nove->setFocusPolicy(Qt::TabFocus);
    nove->setToolTip(popis);
    nove->setAccessibleName(popis);
    return nove;
}

} // namespace

HledaniNaStrance::HledaniNaStrance(QWidget* rodic)
    : QWidget(rodic), txtHledat_(new QLineEdit), lblVysledek_(new QLabel) {
    setObjectName(QStringLiteral("picHledat"));
    txtHledat_->setObjectName(QStringLiteral("txtHledat"));
    txtHledat_->setClearButtonEnabled(true);
    txtHledat_->setMaximumWidth(fontMetrics().averageCharWidth() * 44);
    lblVysledek_->setObjectName(QStringLiteral("lblVysledek"));
    auto* popis = new QLabel(QStringLiteral("&Hledat na stránce:"));
    popis->setBuddy(txtHledat_);
    auto* predchozi = tlacitko(QStringLiteral("cmdPredchoziNalez"), Qt::UpArrow,
                               QStringLiteral("Předchozí nález (Shift+Enter)"));
    auto* dalsi =
        tlacitko(QStringLiteral("cmdDalsiNalez"), Qt::DownArrow, QStringLiteral("Další nález (Enter)"));
    auto* zavrit = new QToolButton;
    zavrit->setObjectName(QStringLiteral("cmdZavritHledani"));
    zavrit->setText(QStringLiteral("Zavřít"));
    zavrit->setAutoRaise(true);
    auto* rozvrh = new QHBoxLayout(this);
    rozvrh->setContentsMargins(10, 5, 10, 5);
    for (QWidget* prvek :
         {static_cast<QWidget*>(popis), static_cast<QWidget*>(txtHledat_), static_cast<QWidget*>(predchozi),
          static_cast<QWidget*>(dalsi), static_cast<QWidget*>(lblVysledek_)})
        rozvrh->addWidget(prvek);
    rozvrh->addStretch(1);
    rozvrh->addWidget(zavrit);
    connect(txtHledat_, &QLineEdit::textChanged, this,
            [this](const QString& text) { Q_EMIT hledat(text, false); });
    connect(dalsi, &QToolButton::clicked, this, [this] { Q_EMIT hledat(txtHledat_->text(), false); });
    connect(predchozi, &QToolButton::clicked, this, [this] { Q_EMIT hledat(txtHledat_->text(), true); });
    connect(zavrit, &QToolButton::clicked, this, &HledaniNaStrance::zavri);
    hide();
}

void HledaniNaStrance::otevri() {
    show();
    txtHledat_->setFocus(Qt::ShortcutFocusReason);
    txtHledat_->selectAll();
    if (!txtHledat_->text().isEmpty()) Q_EMIT hledat(txtHledat_->text(), false);
}

void HledaniNaStrance::zavri() {
    hide();
    Q_EMIT hledat({}, false);
    Q_EMIT zavreno();
}

void HledaniNaStrance::ukazVysledek(int kolikaty, int celkem) {
    const bool nenalezeno = celkem == 0 && !txtHledat_->text().isEmpty();
    lblVysledek_->setText(celkem > 0   ? QStringLiteral("%1 z %2").arg(kolikaty).arg(celkem)
                          : nenalezeno ? QStringLiteral("Nenalezeno")
                                       : QString());
}

void HledaniNaStrance::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        zavri();
    else if (enter && txtHledat_->hasFocus())
        Q_EMIT hledat(txtHledat_->text(), event->modifiers().testFlag(Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}

} // namespace zvonika
