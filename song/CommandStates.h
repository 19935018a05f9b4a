#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

namespace zvonika {

/// Which commands can be used now, by control name ("cmdTah", "cmdZvuk(0)", "mnuOtevrit"). A control that
/// nobody has switched is enabled.
class CommandStates : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool povolen(const QString& prikaz) const {
        return !zakazane_.contains(prikaz) && !zamcene_.contains(prikaz);
    }
    void povol(const QString& prikaz, bool povolit = true);
    /// Disables a command for good: `povol` does not reach it any more.
    void zamkni(const QString& prikaz);

Q_SIGNALS:
    void zmeneno(const QString& prikaz, bool povolen);

private:
    QSet<QString> zakazane_;
    QSet<QString> zamcene_;
};

} // namespace zvonika
