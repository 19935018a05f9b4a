#include "aids/ui/FrmNastaveni.h"

#include "aids/NastaveniRad.h"
#include "aids/ui/FraZabrany.h"
#include "platform/ui/PrvkyDialogu.h"

#include <QButtonGroup>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zvonika {

namespace {

constexpr std::array<const char*, pocetTlacitekRad> jmenaTlacitek{"cmdCDur", "cmdGDur", "cmdFDur"};

} // namespace

FrmNastaveni::FrmNastaveni(NastaveniRad& nastaveni, QWidget* parent)
    : QDialog(parent), nastaveni_(nastaveni), typy_(new QButtonGroup(this)) {
    pripravDialog(*this, QStringLiteral("frmNastaveni"), textyNastaveni::titulek, parent);
    auto* rozvrh = new QVBoxLayout(this);
    rozvrh->setSizeConstraint(QLayout::SetFixedSize);
    rozvrh->setSpacing(10);
    rozvrh->addWidget(postavTypy());
    rozvrh->addWidget(postavSloupce());
    rozvrh->addWidget(postavZabrany());
    rozvrh->addWidget(postavTlacitka());
    nastaveni_.Form_Load();
    if (const auto typ = nastaveni_.typ()) {
        typy_->button(*typ)->setChecked(true);
        typy_->button(*typ)->setFocus();
    }
    obnov();
}

QWidget* FrmNastaveni::postavTypy() {
    auto* typy = new QWidget;
    auto* rozvrh = new QVBoxLayout(typy);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    rozvrh->setSpacing(4);
    for (int i = 0; i < static_cast<int>(textyNastaveni::optTypPrstokladu.size()); ++i) {
        auto* volba = new QRadioButton(textyNastaveni::optTypPrstokladu.at(static_cast<std::size_t>(i)));
        volba->setObjectName(QStringLiteral("optTypPrstokladu(%1)").arg(i));
        typy_->addButton(volba, i);
        rozvrh->addWidget(volba);
    }
    // Selecting in code runs the handler too.
    connect(typy_, &QButtonGroup::idToggled, this, [this](int typ, bool vybran) {
        if (!vybran) return;
        nastaveni_.optTypPrstokladu(typ);
        obnov();
    });
    return typy;
}

QWidget* FrmNastaveni::postavSloupce() {
    auto* sloupce = new QWidget;
    auto* rozvrh = new QHBoxLayout(sloupce);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    for (int sloupec = 0; sloupec < pocetTlacitekRad; ++sloupec)
        rozvrh->addWidget(postavSloupec(sloupec), 1);
    return sloupce;
}

QWidget* FrmNastaveni::postavSloupec(int sloupec) {
    auto* ram = new QFrame;
    ram->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    auto* rozvrh = new QVBoxLayout(ram);
    rozvrh->setSpacing(3);
    auto* vyber = tlacitko(QLatin1String(jmenaTlacitek.at(static_cast<std::size_t>(sloupec))), {});
    tlacitka_.at(static_cast<std::size_t>(sloupec)) = vyber;
    connect(vyber, &QPushButton::clicked, this, [this, sloupec] {
        nastaveni_.klikTlacitkaRad(TlacitkoRad(sloupec));
        obnov();
    });
    rozvrh->addWidget(vyber);
    for (int i = sloupec * toninPodTlacitkem; i < (sloupec + 1) * toninPodTlacitkem; ++i) {
        auto* tonina = napis(QStringLiteral("Label1(%1)").arg(i), {});
        tonina->setAlignment(Qt::AlignCenter);
        label1_.at(static_cast<std::size_t>(i)) = tonina;
        rozvrh->addWidget(tonina);
    }
    return ram;
}

QWidget* FrmNastaveni::postavZabrany() {
    fraZabrany_ = new FraZabrany(textyNastaveni::fraZabrany);
    fraZabrany_->setObjectName(QStringLiteral("fraZabrany"));
    connect(fraZabrany_, &FraZabrany::zmeneno, this,
            [this](int rada, bool zaskrtnuto) { nastaveni_.chkZabrany(rada, zaskrtnuto); });
    auto* nic = tlacitko(QStringLiteral("cmdNic"), textyNastaveni::cmdNic);
    connect(nic, &QPushButton::clicked, this, [this] {
        nastaveni_.cmdNic();
        obnov();
    });
    (new QHBoxLayout(fraZabrany_))->addWidget(nic, 0, Qt::AlignRight | Qt::AlignBottom);
    return fraZabrany_;
}

QWidget* FrmNastaveni::postavTlacitka() {
    auto* rada = new QWidget;
    auto* rozvrh = new QHBoxLayout(rada);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    auto* napoveda = tlacitko(QStringLiteral("cmdNapoveda"), textyNastaveni::cmdNapoveda);
    napoveda->setShortcut(Qt::Key_F1);
    napoveda->setToolTip(textyNastaveni::cmdNapoveda + QStringLiteral(" (F1)"));
    auto* zrusit = tlacitko(QStringLiteral("cmdZrušit"), textyNastaveni::cmdZrusit);
    auto* ok = tlacitko(QStringLiteral("cmdOk"), textyNastaveni::cmdOk);
    ok->setDefault(true);
    connect(napoveda, &QPushButton::clicked, this, [this] { nastaveni_.cmdNapoveda(); });
    connect(zrusit, &QPushButton::clicked, this, &QDialog::reject);
    connect(ok, &QPushButton::clicked, this, [this] {
        nastaveni_.cmdOk();
        accept();
    });
    rozvrh->addWidget(napoveda);
    rozvrh->addStretch(1);
    rozvrh->addWidget(zrusit);
    rozvrh->addWidget(ok);
    return rada;
}

void FrmNastaveni::obnov() {
    for (int i = 0; i < pocetTlacitekRad; ++i)
        tlacitka_.at(static_cast<std::size_t>(i))->setText(nastaveni_.tlacitka().popisek(TlacitkoRad(i)));
    for (int i = 0; i < static_cast<int>(label1_.size()); ++i)
        label1_.at(static_cast<std::size_t>(i))->setText(nastaveni_.tlacitka().label1(i));
    for (int rada = 1; rada <= 5; ++rada)
        fraZabrany_->nastav(rada, nastaveni_.zaskrtnuto(rada));
}

} // namespace zvonika
