#include "board/ui/OstrovFokusu.h"

#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace zvonika {

namespace {

QPoint smerKlavesy(int klavesa) {
    switch (klavesa) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

void OstrovFokusu::pridej(QWidget* clen) {
    clenove_.push_back(clen);
    clen->setFocusPolicy(Qt::ClickFocus);
    if (!zastavka_) vstup(clen);
}

void OstrovFokusu::vstup(QWidget* clen) {
    if (clen == zastavka_) return;
    if (zastavka_) zastavka_->setFocusPolicy(Qt::ClickFocus);
    zastavka_ = clen;
    clen->setFocusPolicy(Qt::StrongFocus);
}

QWidget* OstrovFokusu::soused(const QWidget* od, int klavesa) const {
    if (klavesa == Qt::Key_Home) return clenove_.front();
    if (klavesa == Qt::Key_End) return clenove_.back();
    const QPoint smer = smerKlavesy(klavesa);
    if (smer.isNull()) return nullptr;
    return vpravo_ ? podlePoradi(od, smer) : podlePolohy(od, smer);
}

QWidget* OstrovFokusu::podlePoradi(const QWidget* od, QPoint smer) const {
    const qsizetype odkud = std::find(clenove_.begin(), clenove_.end(), od) - clenove_.begin();
    const qsizetype kam = odkud + qsizetype{smer.x()} * vpravo_ - qsizetype{smer.y()} * nahoru_;
    if (kam < 0 || kam >= clenove_.size()) return nullptr;
    const bool opoustiSloupec = vpravo_ > 1 && smer.x() == 0 && kam / vpravo_ != odkud / vpravo_;
    return opoustiSloupec ? nullptr : clenove_[kam];
}

QWidget* OstrovFokusu::podlePolohy(const QWidget* od, QPoint smer) const {
    const QPoint odkud = od->geometry().center();
    QWidget* nejlepsi = nullptr;
    int nejblize = std::numeric_limits<int>::max();
    for (QWidget* clen : clenove_) {
        const QPoint krok = clen->geometry().center() - odkud;
        const int podel = QPoint::dotProduct(krok, smer);
        const int napric = std::abs(krok.x() * smer.y()) + std::abs(krok.y() * smer.x());
        // Only what lies rather ahead than aside, and rather straight ahead than near: rows are staggered.
        if (podel <= 0 || napric > podel) continue;
        const int dalka = 2 * podel + 3 * napric;
        if (dalka < nejblize) nejblize = dalka, nejlepsi = clen;
    }
    return nejlepsi;
}

} // namespace zvonika
