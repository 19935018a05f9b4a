#include "theory/ui/VolbyTonin.h"

#include "theory/Toniny.h"
#include "theory/ui/ObrazPredznamenani.h"

#include <QButtonGroup>
#include <QFontInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>

namespace zvonika {

namespace {

constexpr int prvniSBecky = 8; ///< keys from here on stand in the second column
constexpr int zaklad = 13;     ///< letter height at which the pictures have their natural size

QRadioButton* volbaToniny(const QWidget& ram, int i) {
    const DurovaTonina& tonina = toniny.at(static_cast<std::size_t>(i));
    auto* volba = new QRadioButton(tonina.nazev.toString());
    volba->setObjectName(QStringLiteral("optStupnice(%1)").arg(i));
    const double zvetseni = ram.fontInfo().pixelSize() / double(zaklad);
    const QSize obraz(static_cast<int>(92 * zvetseni), static_cast<int>(41 * zvetseni));
    volba->setIconSize(obraz);
    volba->setIcon(obrazPredznamenani(Predznamenani(tonina.key()), obraz, ram.devicePixelRatioF()));
    return volba;
}

} // namespace

QButtonGroup* vytvorVolbyTonin(QGroupBox& ram) {
    auto* volby = new QButtonGroup(&ram);
    auto* mrizka = new QGridLayout(&ram);
    mrizka->setHorizontalSpacing(ram.fontInfo().pixelSize() * 2);
    mrizka->setVerticalSpacing(2);
    for (int i = 0; i < static_cast<int>(toniny.size()); ++i) {
        QRadioButton* volba = volbaToniny(ram, i);
        volby->addButton(volba, i);
        const bool sBecky = i >= prvniSBecky;
        // C dur stands above the rising sharps; the first flat key beside the first sharp one.
        mrizka->addWidget(volba, sBecky ? i - prvniSBecky + 1 : i, sBecky ? 1 : 0);
    }
    return volby;
}

} // namespace zvonika
