#pragma once

#include <QObject>
#include <QStringList>

namespace zvonika {

/// The display staff: the tones of the shown grip, at most seven, as they are spelled in the row.
class ZobrazovaciOsnova : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    const QStringList& tony() const { return tony_; }
    void ukaz(const QStringList& tony);
    void vyprazdni() { ukaz({}); }

Q_SIGNALS:
    void zmeneno();

private:
    QStringList tony_;
};

} // namespace zvonika
