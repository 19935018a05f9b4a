#include "theory/ui/ZapisovaciOsnova.h"

#include "theory/TonNaOsnove.h"
#include "theory/clsNotyZapis.h"
#include "theory/ui/PaletaZnamenek.h"
#include "theory/ui/PopisOsnovy.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace zvonika {

namespace {

constexpr double dosahHlavicky = 0.75; ///< staff spaces above and below a head in which the pointer takes it

std::optional<Znamenko> znamenkoKlavesy(const QString& text) {
    if (text == u"#" || text == u"+") return Znamenko::Krizek;
    if (text == u"b" || text == u"B" || text == u"-") return Znamenko::Becko;
    if (text == u"n" || text == u"N" || text == u"0") return Znamenko::Odrazka;
    return std::nullopt;
}

bool jeKlavesaOsnovy(const QKeyEvent& udalost) {
    if (udalost.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) return false;
    switch (udalost.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Insert:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Delete:
        return true;
    default:
        return znamenkoKlavesy(udalost.text()).has_value();
    }
}

} // namespace

ZapisovaciOsnova::ZapisovaciOsnova(NotovaOsnova& osnova, clsNotyZapis& zapis, QWidget* parent)
    : QWidget(parent), osnova_(osnova), zapis_(zapis), paleta_(new PaletaZnamenek(this)) {
    setObjectName(QStringLiteral("osnovaZapisu"));
    setAccessibleName(QStringLiteral("Osnova pro zápis not"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    connect(&osnova_, &NotovaOsnova::changed, this, &ZapisovaciOsnova::prevezmiZmenu);
    connect(paleta_, &PaletaZnamenek::zmeneno, this, [this] { zrusTah(); });
    rozmisti();
    popis();
}

void ZapisovaciOsnova::prevezmiZmenu() {
    zrusTah();
    popis();
    update();
}

void ZapisovaciOsnova::popis() {
    setAccessibleDescription(popisOsnovy(osnova_, zapis_));
}

void ZapisovaciOsnova::rozmisti() {
    const double vyskaNazvu = fontMetrics().height() * 0.85 + 1;
    mista_ = MistaZapisu::pro(rect(), vyskaNazvu, devicePixelRatioF());
    paleta_->setGeometry(mista_.paleta.toAlignedRect());
    update();
}

void ZapisovaciOsnova::resizeEvent(QResizeEvent*) {
    rozmisti();
}

void ZapisovaciOsnova::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) rozmisti();
    QWidget::changeEvent(event);
}

std::optional<int> ZapisovaciOsnova::notaPod(const QPointF& misto, bool presne) const {
    const auto slot = mista_.slotNa(misto.x());
    if (!slot || !osnova_.nota(*slot)) return std::nullopt;
    const double daleko = std::abs(mista_.mirka.y(osnova_.nota(*slot)->poloha.jednotky) - misto.y());
    return presne && daleko > dosahHlavicky * mista_.mirka.mezera ? std::nullopt : slot;
}

std::optional<ZapisovaciOsnova::Duch> ZapisovaciOsnova::duchVolnehoSlotu(double y) const {
    const auto slot = osnova_.volnySlot();
    const PolohaNoty poloha{Znamenko::Zadne, mista_.mirka.jednotky(y)};
    if (!slot || !tonNaOsnove(poloha, osnova_.predznamenani()).jeVRozsahu()) return std::nullopt;
    return Duch{*slot, poloha};
}

void ZapisovaciOsnova::ukazDucha(std::optional<Duch> duch) {
    duch_ = duch;
    update();
}

void ZapisovaciOsnova::zrusTah() {
    tah_ = Tah::Zadny;
    ukazDucha(std::nullopt);
}

void ZapisovaciOsnova::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        stiskLevy(event->position());
    } else if (event->button() == Qt::RightButton) {
        zrusTah();
        if (const auto slot = notaPod(event->position(), false)) odeber(*slot);
    }
}

void ZapisovaciOsnova::stiskLevy(const QPointF& misto) {
    const Znamenko znamenko = paleta_->zvolene();
    if (const auto slot = notaPod(misto, znamenko == Znamenko::Zadne)) {
        osnova_.vyberSlot(slot);
        if (znamenko != Znamenko::Zadne) return dejZnamenko(*slot, znamenko);
        tah_ = Tah::Posouva;
        return ukazDucha(Duch{*slot, osnova_.nota(*slot)->poloha});
    }
    if (misto.x() < mista_.prvniSlot) return;
    if (znamenko != Znamenko::Zadne) {
        Q_EMIT odmitnuto(QStringLiteral("Znaménko patří k notě: klepněte na notu."));
        return;
    }
    tah_ = Tah::Vklada;
    ukazDucha(duchVolnehoSlotu(misto.y()));
}

void ZapisovaciOsnova::mouseMoveEvent(QMouseEvent* event) {
    const QPointF misto = event->position();
    if (tah_ == Tah::Posouva && duch_) {
        duch_->poloha.jednotky = mista_.mirka.jednotky(misto.y());
        return update();
    }
    const bool vklada = tah_ == Tah::Vklada || (paleta_->zvolene() == Znamenko::Zadne &&
                                                !notaPod(misto, true) && misto.x() >= mista_.prvniSlot);
    ukazDucha(vklada ? duchVolnehoSlotu(misto.y()) : std::nullopt);
}

void ZapisovaciOsnova::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const Tah tah = tah_;
    const auto duch = duch_;
    zrusTah();
    if (tah == Tah::Vklada) vloz(mista_.mirka.jednotky(event->position().y()));
    if (tah == Tah::Posouva && duch) posun(duch->slot, duch->poloha.jednotky);
}

void ZapisovaciOsnova::leaveEvent(QEvent*) {
    if (tah_ == Tah::Zadny) ukazDucha(std::nullopt);
}

void ZapisovaciOsnova::focusInEvent(QFocusEvent*) {
    update();
}

void ZapisovaciOsnova::focusOutEvent(QFocusEvent*) {
    update();
}

bool ZapisovaciOsnova::event(QEvent* event) {
    // While the staff has the focus its keys are its own, whatever shortcut of the window uses them too.
    if (event->type() == QEvent::ShortcutOverride && jeKlavesaOsnovy(*static_cast<QKeyEvent*>(event)))
        event->accept();
    return QWidget::event(event);
}

void ZapisovaciOsnova::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && tah_ != Tah::Zadny) return zrusTah();
    if (!jeKlavesaOsnovy(*event) || !obsluzKlavesu(event->key(), event->text())) event->ignore();
}

bool ZapisovaciOsnova::obsluzKlavesu(int klavesa, const QString& text) {
    const auto slot = osnova_.vybranySlot();
    switch (klavesa) {
    case Qt::Key_Left:
        vyberVedlejsi(-1);
        return true;
    case Qt::Key_Right:
        vyberVedlejsi(1);
        return true;
    case Qt::Key_Up:
        posunKlavesou(1);
        return true;
    case Qt::Key_Down:
        posunKlavesou(-1);
        return true;
    case Qt::Key_Insert:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        vlozKlavesou();
        return true;
    default:
        break;
    }
    if (!slot) return false;
    if (klavesa == Qt::Key_Delete)
        odeber(*slot);
    else
        dejZnamenko(*slot, *znamenkoKlavesy(text));
    return true;
}

void ZapisovaciOsnova::vyberVedlejsi(int krok) {
    const int konec = krok > 0 ? NotovaOsnova::pocetNot : -1;
    for (int slot = osnova_.vybranySlot().value_or(krok > 0 ? -1 : NotovaOsnova::pocetNot) + krok;
         slot != konec; slot += krok) {
        if (osnova_.nota(slot)) return osnova_.vyberSlot(slot);
    }
}

void ZapisovaciOsnova::posunKlavesou(int krok) {
    const auto slot = osnova_.vybranySlot();
    if (!slot) return;
    const NotaOsnovy nota = *osnova_.nota(*slot);
    // A place whose tone is on the staff already is stepped over.
    for (int cil = nota.poloha.jednotky + krok * PolohaNoty::jednotekNaStupen;
         cil >= MirkaOsnovy::nejnizsi && cil <= MirkaOsnovy::nejvyssi;
         cil += krok * PolohaNoty::jednotekNaStupen) {
        if (!zapis_.posunNotu(*slot, cil)) continue;
        posledniPoloha_ = cil;
        Q_EMIT notaPosunuta(*slot, nota.ton);
        return;
    }
    Q_EMIT odmitnuto(QStringLiteral("Dál už nástroj žádný volný tón nemá."));
}

bool ZapisovaciOsnova::jeVolno(int jednotky) const {
    const CisloTonu ton = tonNaOsnove({Znamenko::Zadne, jednotky}, osnova_.predznamenani());
    const bool obsazeno = std::any_of(osnova_.noty().begin(), osnova_.noty().end(), [&](const auto& nota) {
        return nota && (nota->poloha.jednotky == jednotky || nota->ton == ton);
    });
    return ton.jeVRozsahu() && !obsazeno;
}

void ZapisovaciOsnova::vlozKlavesou() {
    constexpr int krok = PolohaNoty::jednotekNaStupen;
    constexpr int rozsah = MirkaOsnovy::nejvyssi - MirkaOsnovy::nejnizsi + krok;
    int poloha = posledniPoloha_;
    // The next free place upwards, from the top on to the bottom; five notes block few enough to find one.
    for (int i = 0; i < rozsah / krok && !jeVolno(poloha); ++i)
        poloha = MirkaOsnovy::nejnizsi + (poloha + krok - MirkaOsnovy::nejnizsi) % rozsah;
    vloz(poloha);
}

void ZapisovaciOsnova::vloz(int jednotky) {
    const auto slot = zapis_.pridejNotu(jednotky);
    if (!slot) return odmitni({Znamenko::Zadne, jednotky});
    posledniPoloha_ = jednotky;
    Q_EMIT notaVlozena(*slot);
}

void ZapisovaciOsnova::posun(int slot, int jednotky) {
    if (!osnova_.nota(slot)) return;
    const NotaOsnovy puvodni = *osnova_.nota(slot);
    if (puvodni.poloha.jednotky == jednotky) return;
    if (!zapis_.posunNotu(slot, jednotky)) return odmitni({puvodni.poloha.znamenko, jednotky});
    posledniPoloha_ = jednotky;
    Q_EMIT notaPosunuta(slot, puvodni.ton);
}

void ZapisovaciOsnova::dejZnamenko(int slot, Znamenko znamenko) {
    const NotaOsnovy puvodni = *osnova_.nota(slot);
    const Znamenko nove = puvodni.poloha.znamenko == znamenko ? Znamenko::Zadne : znamenko;
    if (!zapis_.nastavZnamenko(slot, nove)) return odmitni({nove, puvodni.poloha.jednotky});
    Q_EMIT znamenkoZmeneno(slot, puvodni.ton);
}

void ZapisovaciOsnova::odeber(int slot) {
    const CisloTonu ton = osnova_.nota(slot)->ton;
    zapis_.odeberNotu(slot);
    Q_EMIT notaOdebrana(slot, ton);
}

void ZapisovaciOsnova::odmitni(const PolohaNoty& poloha) {
    const CisloTonu ton = tonNaOsnove(poloha, osnova_.predznamenani());
    if (!ton.jeVRozsahu())
        Q_EMIT odmitnuto(QStringLiteral("Tento tón nástroj nemá."));
    else if (osnova_.slotTonu(ton))
        Q_EMIT odmitnuto(QStringLiteral("Tento tón už na osnově stojí."));
    else
        Q_EMIT odmitnuto(QStringLiteral("Na osnovu se vejde pět not."));
}

} // namespace zvonika
