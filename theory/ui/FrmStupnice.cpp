#include "theory/ui/FrmStupnice.h"

#include "platform/ui/PrvkyDialogu.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"
#include "theory/VolbaStupnice.h"
#include "theory/ui/VolbyTonin.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace zvonika {

FrmStupnice::FrmStupnice(VolbaStupnice& volba, const Tonina& tonina, QWidget* parent)
    : QDialog(parent), volba_(volba) {
    pripravDialog(*this, QStringLiteral("frmStupnice"), textyStupnice::titulek, parent);
    auto* vyberte = napis(QStringLiteral("lblVyberte"), textyStupnice::vyberteStupnici);
    QFont tucne = vyberte->font();
    tucne.setBold(true);
    tucne.setPixelSize(fontInfo().pixelSize() * 5 / 4);
    vyberte->setFont(tucne);
    auto* rozvrh = new QVBoxLayout(this);
    rozvrh->setSizeConstraint(QLayout::SetFixedSize);
    rozvrh->addWidget(vyberte);
    rozvrh->addWidget(napis(QStringLiteral("lblSlouzi"), textyStupnice::slouziPro));
    rozvrh->addWidget(postavRam(tonina));
    rozvrh->addWidget(postavTlacitka());
}

QWidget* FrmStupnice::postavRam(const Tonina& tonina) {
    auto* ram = new QGroupBox;
    ram->setObjectName(QStringLiteral("fraStupnice"));
    ram->setAccessibleName(textyStupnice::vyberteStupnici);
    ram->setMinimumWidth(sirkaTitulku(*this));
    optStupnice_ = vytvorVolbyTonin(*ram);
    const DurovaTonina* soucasna = najdiToninu(tonina.stupnice());
    auto* zamerena = optStupnice_->button(soucasna ? static_cast<int>(soucasna - toniny.data()) : 0);
    zamerena->setChecked(soucasna != nullptr);
    zamerena->setFocus();
    return ram;
}

QWidget* FrmStupnice::postavTlacitka() {
    auto* rada = new QWidget;
    auto* rozvrh = new QHBoxLayout(rada);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    auto* ok = tlacitko(QStringLiteral("cmdOK"), textyStupnice::cmdOK);
    ok->setDefault(true);
    auto* help = tlacitko(QStringLiteral("cmdHelp"), textyStupnice::cmdHelp);
    auto* zrusit = tlacitko(QStringLiteral("cmdZrusit"), textyStupnice::cmdZrusit);
    connect(ok, &QPushButton::clicked, this, [this] {
        volba_.cmdOK(vybrana());
        accept();
    });
    connect(help, &QPushButton::clicked, this, [this] { volba_.cmdHelp(); });
    connect(zrusit, &QPushButton::clicked, this, [this] {
        volba_.cmdZrusit();
        accept();
    });
    rozvrh->addWidget(help);
    rozvrh->addStretch(1);
    rozvrh->addWidget(zrusit);
    rozvrh->addWidget(ok);
    return rada;
}

std::optional<int> FrmStupnice::vybrana() const {
    const int id = optStupnice_->checkedId();
    return id < 0 ? std::nullopt : std::optional(id);
}

} // namespace zvonika
