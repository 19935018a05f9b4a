#pragma once

#include "theory/PolohaNoty.h"

#include <QObject>
#include <QStringList>

#include <optional>

namespace zvonika {

/// The note of an interval.
struct NotaIntervalu {
    QString nazev;
    PolohaNoty poloha;

    friend bool operator==(const NotaIntervalu&, const NotaIntervalu&) = default;
};

/// The display staff: the tones of the shown grip, at most seven, as they are spelled in the row, and the
/// note of an interval.
class ZobrazovaciOsnova : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    const QStringList& tony() const { return tony_; }
    const std::optional<NotaIntervalu>& interval() const { return interval_; }
    /// Shows the tones of another grip; an interval goes.
    void ukaz(const QStringList& tony);
    void vyprazdni() { ukaz({}); }
    void ukazInterval(const NotaIntervalu& nota) { prevezmi(tony_, nota); }
    void odeberInterval() { prevezmi(tony_, {}); }

Q_SIGNALS:
    void zmeneno();

private:
    void prevezmi(const QStringList& tony, const std::optional<NotaIntervalu>& interval);

    QStringList tony_;
    std::optional<NotaIntervalu> interval_;
};

} // namespace zvonika
