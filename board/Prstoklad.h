#pragma once

#include "platform/Dialogs.h"

#include <QString>

namespace zvonika {

struct Pisen;
class TrebleBoard;

/// Fingering marks collected for the grip being recorded: entries "l12;1\" (main button 12, thumb) and
/// "s14;4\" (auxiliary button 14, ring finger) in the order of entering. Only `odeber` empties them.
class Prstoklad {
public:
    explicit Prstoklad(Dialogs& dialogs) : dialogs_(dialogs) {}

    void dvojklikLbl(int n) { pridej(u'l', n); }        ///< asks for the finger of main button n
    void dvojklikLblSynchro(int n) { pridej(u's', n); } ///< asks for the finger of auxiliary button n

    const QString& prstoklad() const { return prstoklad_; }
    /// The collected entries, which are given away.
    QString odeber();

private:
    void pridej(QChar druh, int n);

    Dialogs& dialogs_;
    QString prstoklad_;
};

/// Shows the fingering of a stored grip on the buttons.
class ZobrazeniPrstokladu {
public:
    ZobrazeniPrstokladu(const Pisen& pisen, TrebleBoard& diskant, Dialogs& dialogs)
        : pisen_(pisen), diskant_(diskant), dialogs_(dialogs) {}

    /// Reads column V of the current row and stacks its fingers on the captions of the buttons. Every
    /// failure, also of the spreadsheet application, is reported to the user here.
    void ZobrazPrstoklad();
    /// The same for entries that have been read already.
    void zobraz(const QString& zaznam);

private:
    void vyznacPolozku(const QString& polozka);
    void ohlasNeplatnyZaznam();

    const Pisen& pisen_;
    TrebleBoard& diskant_;
    Dialogs& dialogs_;
};

} // namespace zvonika
