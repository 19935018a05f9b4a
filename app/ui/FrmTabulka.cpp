#include "app/ui/FrmTabulka.h"

#include "platform/ui/PrvkyDialogu.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

namespace zvonika {

namespace {

constexpr int sirkaTextu = 400;

QLabel* odstavec(const QString& jmeno, const QString& text) {
    auto* label = napis(jmeno, text);
    label->setWordWrap(true);
    label->setFixedWidth(sirkaTextu);
    return label;
}

} // namespace

FrmTabulka::FrmTabulka(VolbaTabulky& volba, const QVector<NabidkaTabulky>& nabidka, QWidget* parent)
    : QDialog(parent), volba_(volba), optTabulka_(new QButtonGroup(this)) {
    pripravDialog(*this, QStringLiteral("frmTabulka"), QStringLiteral("Tabulkový program"), parent);
    auto* rozvrh = new QVBoxLayout(this);
    rozvrh->setSizeConstraint(QLayout::SetFixedSize);
    rozvrh->setSpacing(12);
    rozvrh->addWidget(postavVolby(nabidka));
    rozvrh->addWidget(odstavec(
        QStringLiteral("lblPlatnost"),
        QStringLiteral("Změna se projeví při příštím spuštění Zvoniky. Písničky jsou ve všech tabulkových "
                       "programech tytéž soubory.")));
    rozvrh->addWidget(postavTlacitka());
}

QWidget* FrmTabulka::postavVolby(const QVector<NabidkaTabulky>& nabidka) {
    auto* ram = new QGroupBox(QStringLiteral("V čem se mají písničky otevírat"));
    ram->setObjectName(QStringLiteral("fraTabulka"));
    auto* mrizka = new QGridLayout(ram);
    mrizka->setColumnMinimumWidth(0, style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) + 4);
    mrizka->setVerticalSpacing(3);
    for (const NabidkaTabulky& jedna : nabidka)
        pridejVolbu(*mrizka, jedna);
    auto* zvolena = optTabulka_->button(static_cast<int>(volba_.zvolena()));
    if (!zvolena) zvolena = optTabulka_->button(static_cast<int>(Tabulka::Vestavena));
    zvolena->setChecked(true);
    zvolena->setFocus();
    return ram;
}

void FrmTabulka::pridejVolbu(QGridLayout& mrizka, const NabidkaTabulky& nabidka) {
    const int cislo = static_cast<int>(nabidka.tabulka);
    auto* volba = new QRadioButton(nabidka.nazev);
    volba->setObjectName(QStringLiteral("optTabulka(%1)").arg(cislo));
    volba->setEnabled(nabidka.prekazka.isEmpty());
    volba->setAccessibleDescription(nabidka.prekazka.isEmpty() ? nabidka.popis : nabidka.prekazka);
    QFont tucne = volba->font();
    tucne.setBold(true);
    volba->setFont(tucne);
    optTabulka_->addButton(volba, cislo);
    mrizka.addWidget(volba, mrizka.rowCount(), 0, 1, 2);
    mrizka.addWidget(odstavec(QStringLiteral("lblPopis(%1)").arg(cislo), nabidka.popis), mrizka.rowCount(),
                     1);
    if (!nabidka.prekazka.isEmpty()) {
        auto* prekazka = odstavec(QStringLiteral("lblPrekazka(%1)").arg(cislo), nabidka.prekazka);
        QPalette paleta = prekazka->palette();
        paleta.setColor(QPalette::WindowText, QColor(0xA0, 0x20, 0x10));
        prekazka->setPalette(paleta);
        mrizka.addWidget(prekazka, mrizka.rowCount(), 1);
    }
    mrizka.setRowMinimumHeight(mrizka.rowCount(), 8);
}

QWidget* FrmTabulka::postavTlacitka() {
    auto* rada = new QWidget;
    auto* rozvrh = new QHBoxLayout(rada);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    auto* ok = tlacitko(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    auto* storno = tlacitko(QStringLiteral("cmdStorno"), QStringLiteral("Storno"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] {
        const int cislo = optTabulka_->checkedId();
        if (cislo >= 0) volba_.zvol(static_cast<Tabulka>(cislo));
        accept();
    });
    connect(storno, &QPushButton::clicked, this, &QDialog::reject);
    rozvrh->addStretch(1);
    rozvrh->addWidget(storno);
    rozvrh->addWidget(ok);
    return rada;
}

} // namespace zvonika
