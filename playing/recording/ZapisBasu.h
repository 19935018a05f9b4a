#pragma once

#include "board/BassBoard.h"
#include "board/BassTable.h"
#include "platform/Dialogs.h"
#include "song/SongSheet.h"

namespace zvonika {

/// Records the marked basses into a grip row.
class ZapisBasu {
public:
    ZapisBasu(const BassBoard& basy, BassTable& tabulka, Dialogs& dialogs)
        : basy_(basy), tabulka_(tabulka), dialogs_(dialogs) {}

    /// Writes the names of the marked basses by rising number, at most seven; the eighth gets its message. A
    /// marked bass that the table does not name is left out, with a message. What is written stands in
    /// `hmat`.
    void ZapisBasy(SongSheet& list, int radek, Grip& hmat);

private:
    struct Jmena {
        QStringList basy;
        bool prebyva = false;
        bool nekteryBezeJmena = false;
    };

    Jmena jmenaOznacenych();
    static void pridej(Jmena& jmena, const QString& nazev);
    void ohlasPrebytek();
    void ohlasTabulku();

    const BassBoard& basy_;
    BassTable& tabulka_;
    Dialogs& dialogs_;
};

} // namespace zvonika
