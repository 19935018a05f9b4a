#pragma once

#include "platform/Dialogs.h"

#include <QString>

namespace zvonika {

/// Fingering marks collected for the grip being recorded: entries "l12;1\" (main button 12, thumb) and
/// "s14;4\" (auxiliary button 14, ring finger) in the order of entering. Only a
/// recorded grip empties them.
class Prstoklad {
public:
    explicit Prstoklad(Dialogs& dialogs) : dialogs_(dialogs) {}

    void dvojklikLbl(int n) { pridej(u'l', n); }        ///< asks for the finger of main button n
    void dvojklikLblSynchro(int n) { pridej(u's', n); } ///< asks for the finger of auxiliary button n

    const QString& prstoklad() const { return prstoklad_; }
    /// The collected entries, which are given away.
    QString odeber();
    /// Exchanges the entries for those of another time.
    void nastav(const QString& prstoklad);
    /// Exchanges them for those of a grip that is to be put right: the finger that is then entered for a
    /// button takes the place of the one that it had.
    void prevezmi(const QString& prstoklad);

private:
    void pridej(QChar druh, int n);
    void nahradPrevzaty(const QString& knoflik);

    Dialogs& dialogs_;
    QString prstoklad_;
    qsizetype prevzato_ = 0; ///< so much of the entries, from the first on, was taken over
};

} // namespace zvonika
