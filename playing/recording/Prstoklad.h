#pragma once

#include <QObject>
#include <QStringList>

namespace zvonika {

/// Fingering marks that wait for the grip being recorded: entries "l12;1\" (main button 12, thumb) and
/// "s14;4\" (auxiliary button 14, ring finger) in the order of entering, as they were typed. Only a recorded
/// grip empties them.
class Prstoklad : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    QString prstoklad() const { return zaznamy_.join(QString()); } ///< as it is recorded
    bool prazdny() const { return zaznamy_.isEmpty(); }
    const QStringList& zaznamy() const { return zaznamy_; } ///< entry by entry

    /// `druh`: 'l' for main button `knoflik`, 's' for its auxiliary one. Any text is a finger.
    void pridej(QChar druh, int knoflik, const QString& prst);
    void odeberPosledni(); ///< nothing where none waits
    /// The collected entries, which are given away.
    QString odeber();
    /// Exchanges the entries for those of another time.
    void nastav(const QString& prstoklad);
    /// Exchanges them for those of a stored grip that is to be put right: the finger that is then entered for
    /// a button takes the place of the one that it had.
    void prevezmi(const QString& prstoklad);

Q_SIGNALS:
    void zmeneno();

private:
    void zmen(const QStringList& zaznamy);
    QStringList bezPrevzateho(const QString& knoflik);

    QStringList zaznamy_;
    qsizetype prevzato_ = 0; ///< so many of the entries, from the first on, are of a stored grip
};

} // namespace zvonika
