#include "song/ui/PasWidget.h"

#include "song/ui/ElidovanyPopisek.h"
#include "theory/ui/BarvyVyznamu.h"
#include "theory/ui/OsnovaPainter.h"
#include "theory/ui/PolohaNazvu.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace zvonika {

namespace {

constexpr double krajKlice = 0.4; ///< staff spaces before and behind the clef
constexpr double sirkaPozice =
    3.2; ///< staff spaces that a position needs: a head, a second beside it, a sign
constexpr double podilSipky = 0.62; ///< of the height of the number row
constexpr QColor zvyrazneni{255, 237, 196};
constexpr QColor zvyrazneniOkraj{240, 205, 130};
constexpr QColor soucasnaSlabika{255, 0, 0};
constexpr QColor cisloRadku{128, 122, 110};
constexpr QColor predel{232, 227, 216};

/// "<" for pull, ">" for push, in the middle of `misto`.
void kresliSmer(QPainter& painter, const QRectF& misto, SmerMechu smer) {
    if (smer == SmerMechu::Neuveden) return;
    const double vyska = misto.height() * 0.26;
    const double sirka = (smer == SmerMechu::Tah ? -1 : 1) * misto.height() * 0.16;
    const QPointF stred = misto.center();
    QPainterPath sipka;
    sipka.moveTo(stred + QPointF(-sirka, -vyska));
    sipka.lineTo(stred + QPointF(sirka, 0));
    sipka.lineTo(stred + QPointF(-sirka, vyska));
    painter.setPen(QPen(smer == SmerMechu::Tah ? barvyTahu::znacka : barvyTlaku::znacka,
                        std::max(1.5, misto.height() * 0.13), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(sipka);
}

/// Row of numbers above and row of syllables below the staff.
int vyskaHlavicky(const QWidget& pas) {
    return static_cast<int>(std::lround(pas.fontInfo().pixelSize() * 1.15)) + 1;
}

int vyskaSlabik(const QWidget& pas) {
    return pas.fontMetrics().height() + 4;
}

} // namespace

PasWidget::PasWidget(Pas& pas, QWidget* parent) : QWidget(parent), pas_(pas) {
    setObjectName(QStringLiteral("pas"));
    setAccessibleName(QStringLiteral("Pás šestnácti hmatů"));
    for (int i = 1; i <= delkaPasu; ++i) {
        auto* slabika = new ElidovanyPopisek(QStringLiteral("lblSlabika2(%1)").arg(i), this);
        slabika->nastavVelikost(1, 0.72);
        slabiky_[static_cast<std::size_t>(i - 1)] = slabika;
    }
    connect(&pas_, &Pas::zmeneno, this, &PasWidget::prevezmiObsah);
    connect(&pas_, &Pas::posunuto, this, &PasWidget::prevezmiPosun);
    rozmisti();
    prevezmiObsah();
}

QString PasWidget::popis(int pozice) const {
    const Pas::Pozice& obsah = pas_.pozice[static_cast<std::size_t>(pozice - 1)];
    QStringList casti;
    if (!obsah.slabika.isEmpty()) casti.append(obsah.slabika);
    if (!obsah.tony.isEmpty()) casti.append(obsah.tony.join(u' ').remove(u','));
    if (obsah.smer != SmerMechu::Neuveden) casti.append(textSmeru(obsah.smer).toLower());
    const QString co = casti.isEmpty() ? QStringLiteral("prázdný") : casti.join(QStringLiteral(", "));
    return QStringLiteral("Hmat %1: %2").arg(pas_.prvniRadekPasu + pozice - 1).arg(co);
}

void PasWidget::prevezmiObsah() {
    for (int i = 1; i <= delkaPasu; ++i) {
        ElidovanyPopisek* slabika = slabiky_[static_cast<std::size_t>(i - 1)];
        slabika->nastavText(pas_.viditelny ? pas_.pozice[static_cast<std::size_t>(i - 1)].slabika
                                           : QString());
        slabika->setAccessibleName(pas_.viditelny ? popis(i) : QString());
    }
    obsah_ = QPixmap();
    prevezmiPosun();
    update();
}

void PasWidget::prevezmiPosun() {
    const int nova = pas_.viditelny ? pas_.poziceVPasu : 0;
    if (nova != zvyraznena_) {
        zvyrazni(zvyraznena_, false);
        zvyraznena_ = nova;
        zvyrazni(zvyraznena_, true);
    }
    setAccessibleDescription(nova >= 1 && nova <= delkaPasu ? popis(nova) : QString());
}

void PasWidget::zvyrazni(int pozice, bool soucasna) {
    if (pozice < 1 || pozice > delkaPasu) return;
    ElidovanyPopisek* slabika = slabiky_[static_cast<std::size_t>(pozice - 1)];
    slabika->nastavBarvu(soucasna ? soucasnaSlabika : QColor());
    slabika->nastavTucne(soucasna);
    update(sloupec(pozice));
}

QRect PasWidget::sloupec(int pozice) const {
    const double vlevo = (2 * krajKlice + OsnovaPainter::sirkaKlice) * mirka_.mezera;
    const double sirka = (width() - 3 - vlevo) / delkaPasu;
    const int od = static_cast<int>(std::lround(vlevo + (pozice - 1) * sirka));
    const int po = static_cast<int>(std::lround(vlevo + pozice * sirka));
    return {od, 0, po - od, height()};
}

void PasWidget::rozmisti() {
    const int slabiky = vyskaSlabik(*this);
    const QRectF pole(0, vyskaHlavicky(*this), width(), height() - vyskaHlavicky(*this) - slabiky);
    const double nejvice =
        (width() - 3) / (2 * krajKlice + OsnovaPainter::sirkaKlice + delkaPasu * sirkaPozice);
    mirka_ = MirkaOsnovy::proPole(pole, nejvice, devicePixelRatioF());
    for (int i = 1; i <= delkaPasu; ++i) {
        const QRect misto = sloupec(i).adjusted(1, height() - slabiky, -1, -2);
        slabiky_[static_cast<std::size_t>(i - 1)]->setGeometry(misto);
    }
    obsah_ = QPixmap();
    update();
}

void PasWidget::resizeEvent(QResizeEvent*) {
    rozmisti();
}

void PasWidget::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) rozmisti();
    QWidget::changeEvent(event);
}

void PasWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pas_.viditelny) return event->ignore();
    for (int i = 1; i <= delkaPasu; ++i)
        if (sloupec(i).contains(event->position().toPoint())) return Q_EMIT zvolenaPozice(i);
}

void PasWidget::paintEvent(QPaintEvent* event) {
    const double dpr = devicePixelRatioF();
    if (obsah_.isNull() || obsah_.devicePixelRatio() != dpr) kresliObsah();
    QPainter painter(this);
    OsnovaPainter::papir(painter, rect());
    if (zvyraznena_ >= 1 && zvyraznena_ <= delkaPasu) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(zvyrazneniOkraj, 1));
        painter.setBrush(zvyrazneni);
        painter.drawRoundedRect(QRectF(sloupec(zvyraznena_)).adjusted(0.5, 2.5, -0.5, -2.5), 4, 4);
    }
    const QRectF vyrez(event->rect());
    painter.drawPixmap(vyrez, obsah_, QRectF(vyrez.topLeft() * dpr, vyrez.size() * dpr));
}

void PasWidget::kresliObsah() {
    ++prekresleni_;
    obsah_ = QPixmap(size() * devicePixelRatioF());
    obsah_.setDevicePixelRatio(devicePixelRatioF());
    obsah_.fill(Qt::transparent);
    if (obsah_.isNull()) return;
    QPainter painter(&obsah_);
    OsnovaPainter kresba(painter, mirka_);
    kresba.linky(4, width() - 4);
    kresba.klic(2 + krajKlice * mirka_.mezera);
    if (!pas_.viditelny) return;
    for (int i = 1; i <= delkaPasu; ++i) {
        const QRectF misto(sloupec(i));
        kresliHlavicku(painter, i);
        const auto& tony = pas_.pozice[static_cast<std::size_t>(i - 1)].tony;
        kresba.akordDoMista(misto.left() + 1, misto.right() - 1, rozvrhniAkord(polohyNazvu(tony)),
                            barvyOsnovy::inkoust);
    }
}

/// One size for all numbers, so that the longest leaves room for the arrow beside it.
QFont PasWidget::pismoCisel() const {
    const double vyska = vyskaHlavicky(*this);
    const double misto = sloupec(1).width() - vyska * podilSipky - 5;
    QFont pismo = font();
    pismo.setPixelSize(std::max(7, static_cast<int>(vyska * 0.72)));
    const QString nejdelsi(QString::number(pas_.prvniRadekPasu + delkaPasu - 1).size(), u'8');
    if (const double sirka = QFontMetricsF(pismo).horizontalAdvance(nejdelsi); sirka > misto)
        pismo.setPixelSize(std::max(5, static_cast<int>(pismo.pixelSize() * misto / sirka)));
    return pismo;
}

void PasWidget::kresliHlavicku(QPainter& painter, int pozice) const {
    const QRectF sloup(sloupec(pozice));
    painter.fillRect(QRectF(sloup.left(), 5, 1, height() - 10), predel);
    const double vyska = vyskaHlavicky(*this);
    const QString cislo = QString::number(pas_.prvniRadekPasu + pozice - 1);
    const double sipka = vyska * podilSipky;
    const QRectF misto(sloup.left() + 3, 3, sloup.width() - 5, vyska);
    painter.setFont(pismoCisel());
    painter.setPen(cisloRadku);
    painter.drawText(misto, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, cislo);
    kresliSmer(painter, {misto.right() - sipka, misto.top(), sipka, vyska},
               pas_.pozice[static_cast<std::size_t>(pozice - 1)].smer);
}

} // namespace zvonika
