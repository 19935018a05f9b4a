#include "theory/ui/FrmStupnice.h"

#include "platform/ui/PrvkyDialogu.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"
#include "theory/VolbaStupnice.h"
#include "theory/ui/ObrazPredznamenani.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace zvonika {

namespace {

constexpr int prvniSBecky = 8; ///< keys from here on stand in the second column
constexpr int zaklad = 13;     ///< letter height at which the pictures have their natural size

} // namespace

FrmStupnice::FrmStupnice(VolbaStupnice& volba, const Tonina& tonina, QWidget* parent)
    : QDialog(parent), volba_(volba), optStupnice_(new QButtonGroup(this)) {
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
    auto* mrizka = new QGridLayout(ram);
    mrizka->setHorizontalSpacing(fontInfo().pixelSize() * 2);
    mrizka->setVerticalSpacing(2);
    for (int i = 0; i < static_cast<int>(toniny.size()); ++i)
        pridejVolbu(*mrizka, i);
    const DurovaTonina* soucasna = najdiToninu(tonina.stupnice());
    auto* zamerena = optStupnice_->button(soucasna ? static_cast<int>(soucasna - toniny.data()) : 0);
    zamerena->setChecked(soucasna != nullptr);
    zamerena->setFocus();
    return ram;
}

void FrmStupnice::pridejVolbu(QGridLayout& mrizka, int i) {
    const DurovaTonina& tonina = toniny.at(static_cast<std::size_t>(i));
    auto* volba = new QRadioButton(tonina.nazev.toString());
    volba->setObjectName(QStringLiteral("optStupnice(%1)").arg(i));
    const double zvetseni = fontInfo().pixelSize() / double(zaklad);
    const QSize obraz(static_cast<int>(92 * zvetseni), static_cast<int>(41 * zvetseni));
    volba->setIconSize(obraz);
    volba->setIcon(obrazPredznamenani(Predznamenani(tonina.key()), obraz, devicePixelRatioF()));
    optStupnice_->addButton(volba, i);
    const bool sBecky = i >= prvniSBecky;
    // C dur stands above the rising sharps; the first flat key beside the first sharp one.
    mrizka.addWidget(volba, sBecky ? i - prvniSBecky + 1 : i, sBecky ? 1 : 0);
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
