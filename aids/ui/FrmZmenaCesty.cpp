#include "aids/ui/FrmZmenaCesty.h"

#include "aids/ZmenaCesty.h"
#include "platform/ui/PrvkyDialogu.h"
#include "song/ui/ElidovanyPopisek.h"

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace zvonika {

FrmZmenaCesty::FrmZmenaCesty(ZmenaCesty& zmena, QWidget* parent)
    : QDialog(parent), zmena_(zmena), Option1_(new QButtonGroup(this)), txtCesta_(new QLineEdit) {
    pripravDialog(*this, QStringLiteral("frmZmenaCesty"), textyCesty::titulek, parent);
    auto* vysvetleni = napis(QStringLiteral("Label2"), textyCesty::Label2);
    vysvetleni->setWordWrap(true);
    auto* rozvrh = new QVBoxLayout(this);
    rozvrh->setSizeConstraint(QLayout::SetFixedSize);
    rozvrh->setSpacing(12);
    rozvrh->addWidget(postavSoucasnou());
    rozvrh->addWidget(vysvetleni);
    rozvrh->addWidget(postavVolby());
    rozvrh->addWidget(postavTlacitka());
}

QWidget* FrmZmenaCesty::postavSoucasnou() {
    auto* cast = new QWidget;
    auto* rozvrh = new QVBoxLayout(cast);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    rozvrh->addWidget(napis(QStringLiteral("Label1"), textyCesty::Label1));
    auto* ram = new QFrame;
    ram->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Sunken));
    ram->setBackgroundRole(QPalette::Base);
    ram->setAutoFillBackground(true);
    auto* cesta = new ElidovanyPopisek(QStringLiteral("lblStaraCesta"));
    cesta->setMinimumHeight(fontMetrics().height());
    cesta->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    cesta->setAccessibleDescription(textyCesty::Label1);
    cesta->nastavTucne(true);
    cesta->nastavText(zmena_.lblStaraCesta());
    (new QVBoxLayout(ram))->addWidget(cesta);
    rozvrh->addWidget(ram);
    return cast;
}

QWidget* FrmZmenaCesty::postavVolby() {
    auto* volby = new QWidget;
    auto* mrizka = new QGridLayout(volby);
    mrizka->setContentsMargins(0, 0, 0, 0);
    mrizka->setColumnStretch(1, 1);
    for (int i = 0; i < static_cast<int>(textyCesty::Option1.size()); ++i)
        pridejVolbu(*mrizka, i);
    txtCesta_->setObjectName(QStringLiteral("txtCesta"));
    txtCesta_->setAccessibleName(textyCesty::Option1.at(volbaJinaCesta));
    mrizka->addWidget(txtCesta_, volbaJinaCesta, 1);
    connect(txtCesta_, &QLineEdit::textEdited, this,
            [this] { Option1_->button(volbaJinaCesta)->setChecked(true); });
    return volby;
}

void FrmZmenaCesty::pridejVolbu(QGridLayout& mrizka, int i) {
    auto* volba = new QRadioButton(textyCesty::Option1.at(static_cast<std::size_t>(i)));
    volba->setObjectName(QStringLiteral("Option1(%1)").arg(i));
    Option1_->addButton(volba, i);
    mrizka.addWidget(volba, i, 0, 1, i == volbaJinaCesta ? 1 : 2);
}

QWidget* FrmZmenaCesty::postavTlacitka() {
    auto* rada = new QWidget;
    auto* rozvrh = new QHBoxLayout(rada);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    auto* ok = tlacitko(QStringLiteral("OKButton"), textyCesty::OKButton);
    ok->setDefault(true);
    auto* zrusit = tlacitko(QStringLiteral("CancelButton"), textyCesty::CancelButton);
    connect(ok, &QPushButton::clicked, this, &FrmZmenaCesty::OKButton);
    connect(zrusit, &QPushButton::clicked, this, &QDialog::reject);
    rozvrh->addStretch(1);
    rozvrh->addWidget(zrusit);
    rozvrh->addWidget(ok);
    return rada;
}

void FrmZmenaCesty::OKButton() {
    const int vybrana = Option1_->checkedId();
    if (zmena_.OKButton(vybrana < 0 ? std::nullopt : std::optional(vybrana), txtCesta_->text())) accept();
}

} // namespace zvonika
