#include "song/ui/PanelTextu.h"

#include "song/SongPanel.h"
#include "song/ui/ElidovanyPopisek.h"
#include "theory/ui/OsnovaPainter.h"

#include <QAccessible>
#include <QPainter>

namespace zvonika {

namespace {

constexpr int okraj = 5;
constexpr int soucasna = 2;
constexpr QColor okolniSlabika{120, 114, 104};
constexpr QColor popisekRadku{120, 114, 104};
constexpr QColor jinaStrana{170, 30, 20};
constexpr QColor pruhSlabik{250, 244, 230};

} // namespace

PanelTextu::PanelTextu(SongPanel& panel, QWidget* parent)
    : QWidget(parent), panel_(panel), lblPopisD_(new ElidovanyPopisek(QStringLiteral("lblPopisD"), this)),
      lblTony_(new ElidovanyPopisek(QStringLiteral("lblTony"), this)),
      lblPopisB_(new ElidovanyPopisek(QStringLiteral("lblPopisB"), this)),
      lblBasy_(new ElidovanyPopisek(QStringLiteral("lblBasy"), this)),
      lblStrana_(new ElidovanyPopisek(QStringLiteral("lblStrana"), this)),
      lblStupnice_(new ElidovanyPopisek(QStringLiteral("lblStupnice"), this)) {
    setObjectName(QStringLiteral("panelTextu"));
    setAccessibleName(QStringLiteral("Texty hmatu"));
    for (int i = 0; i < static_cast<int>(lblSlabika_.size()); ++i) {
        auto* slabika = new ElidovanyPopisek(QStringLiteral("lblSlabika(%1)").arg(i), this);
        slabika->nastavVelikost(i == soucasna ? 1.6 : 1, i == soucasna ? 0.9 : 0.75);
        slabika->nastavTucne(i == soucasna);
        slabika->nastavBarvu(i == soucasna ? barvyOsnovy::inkoust : okolniSlabika);
        lblSlabika_[static_cast<std::size_t>(i)] = slabika;
    }
    lblPopisD_->nastavText(QStringLiteral("Diskant:"));
    lblPopisB_->nastavText(QStringLiteral("Basy:"));
    lblStupnice_->setAccessibleDescription(QStringLiteral("Zapsaná stupnice hmatu"));
    for (ElidovanyPopisek* popis : {lblPopisD_, lblPopisB_, lblStupnice_}) {
        popis->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        popis->nastavBarvu(popisekRadku);
    }
    for (ElidovanyPopisek* obsah : {lblTony_, lblBasy_}) {
        obsah->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        obsah->nastavVelikost(1.08, 0.72);
        obsah->nastavBarvu(barvyOsnovy::inkoust);
    }
    lblTony_->nastavDvaRadky();
    lblStrana_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblStrana_->nastavBarvu(jinaStrana);
    lblStrana_->nastavTucne(true);
    lblStupnice_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(&panel_, &SongPanel::zmeneno, this, &PanelTextu::prevezmiZmenu);
    prevezmiZmenu();
}

void PanelTextu::prevezmiZmenu() {
    for (std::size_t i = 0; i < lblSlabika_.size(); ++i)
        lblSlabika_[i]->nastavText(panel_.lblSlabika[i]);
    lblTony_->nastavText(panel_.lblTony);
    lblBasy_->nastavText(panel_.lblBasy);
    lblStupnice_->nastavText(panel_.lblStupnice);
    ukazStranu();
    lblPopisD_->setVisible(panel_.popisyViditelne);
    lblPopisB_->setVisible(panel_.popisyViditelne);
}

/// A screen reader is told at once, wherever the player is.
void PanelTextu::ukazStranu() {
    if (panel_.lblStrana == lblStrana_->text()) return;
    lblStrana_->nastavText(panel_.lblStrana);
    if (panel_.lblStrana.isEmpty()) return;
    QAccessibleEvent hlaseni(lblStrana_, QAccessible::Alert);
    QAccessible::updateAccessibility(&hlaseni);
}

int PanelTextu::vyskaSlabik() const {
    return height() * 34 / 100;
}

void PanelTextu::resizeEvent(QResizeEvent*) {
    rozmistiSlabiky({okraj, 2, width() - 2 * okraj, vyskaSlabik() - 3});
    const int nahore = vyskaSlabik() + 2;
    // Seven tones with their signs need two lines.
    const int radek = (height() - nahore - 3) / 4;
    const int sirka = width() - 2 * okraj;
    rozmistiRadek(lblPopisD_, lblTony_, {okraj, nahore, sirka, 2 * radek});
    rozmistiRadek(lblPopisB_, lblBasy_, {okraj, nahore + 2 * radek, sirka, radek});
    const int sirkaStrany = sirka * 60 / 100;
    lblStrana_->setGeometry(okraj, nahore + 3 * radek, sirkaStrany, radek);
    lblStupnice_->setGeometry(okraj + sirkaStrany, nahore + 3 * radek, sirka - sirkaStrany, radek);
}

void PanelTextu::rozmistiSlabiky(const QRect& misto) {
    // The middle one gets three times the room of its neighbours.
    const int dil = misto.width() / 7;
    int vlevo = misto.left();
    for (int i = 0; i < static_cast<int>(lblSlabika_.size()); ++i) {
        const int sirka = i == soucasna ? misto.width() - 4 * dil : dil;
        lblSlabika_[static_cast<std::size_t>(i)]->setGeometry(vlevo, misto.top(), sirka - 2, misto.height());
        vlevo += sirka;
    }
}

void PanelTextu::rozmistiRadek(QWidget* popis, QWidget* obsah, const QRect& misto) {
    const int sirkaPopisu = misto.width() * 24 / 100;
    popis->setGeometry(misto.left(), misto.top(), sirkaPopisu, misto.height());
    obsah->setGeometry(misto.left() + sirkaPopisu + 3, misto.top(), misto.width() - sirkaPopisu - 3,
                       misto.height());
}

void PanelTextu::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    OsnovaPainter::papir(painter, rect());
    painter.fillRect(2, 2, width() - 4, vyskaSlabik() - 2, pruhSlabik);
}

} // namespace zvonika
