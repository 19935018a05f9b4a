#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

namespace zvonika {

/// Fingering marks that wait for the grip being recorded: entries "l12;1\" (main button 12, thumb) and
/// "s14;4\" (auxiliary button 14, ring finger) in the order of entering, as they were typed. Only a recorded
/// grip empties them.
class Prstoklad : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    QString prstoklad() const { return stav_.zaznamy.join(QString()); } ///< as it is recorded
    bool prazdny() const { return stav_.zaznamy.isEmpty(); }
    const QStringList& zaznamy() const { return stav_.zaznamy; } ///< entry by entry

    /// `druh`: 'l' for main button `knoflik`, 's' for its auxiliary one. Any text is a finger. A finger that
    /// was taken over for this button goes.
    void pridej(QChar druh, int knoflik, const QString& prst);
    void odeberPosledni(); ///< as if it had not been entered; nothing where none waits
    /// The collected entries, which are given away.
    QString odeber();
    /// Exchanges the entries for those of another time.
    void nastav(const QString& prstoklad);
    /// Exchanges them for those of a grip that is to be put right: the finger that is then entered for a
    /// button takes the place of the one that it had.
    void prevezmi(const QString& prstoklad);

Q_SIGNALS:
    void zmeneno();

private:
    struct Stav {
        QStringList zaznamy;
        qsizetype prevzatych = 0; ///< so many of them, from the first on, were taken over
    };
    void zmen(const Stav& stav);
    void zacniZnovu(const Stav& stav);

    Stav stav_;
    std::vector<Stav> predtim_; ///< before each finger that was entered
};

} // namespace zvonika
