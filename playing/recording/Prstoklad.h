#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

namespace zvonika {

/// Fingering marks that wait for the grip being recorded: entries "l12;1\" (main button 12, thumb) and
/// "s14;4\" (auxiliary button 14, ring finger) in the order of entering. What was typed is recorded as it
/// stands, and only a recorded grip empties it; what was taken over from a grip goes with its button.
class Prstoklad : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// What is recorded with a grip of these buttons: all that was typed and, of what was taken over, the
    /// entries of these buttons.
    QString prstoklad(const std::vector<int>& hmat) const { return zaznamy(hmat).join(QString()); }
    QStringList zaznamy(const std::vector<int>& hmat) const; ///< the same, entry by entry

    QString prstoklad() const { return stav_.zaznamy.join(QString()); } ///< of any grip
    const QStringList& zaznamy() const { return stav_.zaznamy; }
    bool prazdny() const { return stav_.zaznamy.isEmpty(); }

    /// `druh`: 'l' for main button `knoflik`, 's' for its auxiliary one. Any text is a finger. A finger that
    /// was taken over for this button goes.
    void pridej(QChar druh, int knoflik, const QString& prst);
    /// Takes back the last of those that are recorded with this grip, as if it had not been entered; nothing
    /// where there is none.
    void odeberPosledni(const std::vector<int>& hmat);
    /// The collected entries, which are given away.
    QString odeber();
    /// Exchanges the entries for those of another time.
    void nastav(const QString& prstoklad);
    /// Exchanges them for those of a grip that is to be put right: the finger that is then entered for a
    /// button takes the place of the one that it had.
    void prevezmi(const QString& prstoklad);
    void zapomenPrevzate(); ///< only what was typed stays

Q_SIGNALS:
    void zmeneno();

private:
    struct Stav {
        QStringList zaznamy;
        qsizetype prevzatych = 0; ///< so many of them, from the first on, were taken over
    };
    void zmen(const Stav& stav);
    void zacniZnovu(const Stav& stav);
    bool zapiseSe(qsizetype zaznam, const std::vector<int>& hmat) const;

    Stav stav_;
    std::vector<Stav> predtim_; ///< before each finger that was entered
};

/// The button that an entry is for; 0 where it names no number.
int cisloKnofliku(const QString& zaznam);

} // namespace zvonika
