#pragma once

#include "platform/Drive.h"
#include "playing/undo/SeznamKroku.h"
#include "song/Pisen.h"

#include <QByteArray>
#include <QHash>

namespace zvonika {

/// The lists of steps of all songs of this run, each by the full name of its song. That of a song sleeps
/// while the song is closed, and nobody else's steps ever get into it.
class SeznamyKroku {
public:
    SeznamyKroku(const Pisen& pisen, const Drive& drive) : pisen_(pisen), drive_(drive) {}

    /// The list of the open song; nullptr when none is open.
    SeznamKroku* otevrene();
    const SeznamKroku* otevrene() const { return const_cast<SeznamyKroku*>(this)->otevrene(); }
    /// What is taken back (done again) next in the open song: a label; "" where there is nothing.
    QString popis(SmerKroku smer) const;
    /// The open song has a step more. Nothing where no song is open or the step changes nothing.
    void pridej(KrokSeznamu krok);

    /// The open song is closed: its list goes to sleep beside the file as it is on the disk now.
    void uspi();
    /// The song has been opened. False when its file is another than the list went to sleep with: cells could
    /// be compared, but not where a row that was put in or taken out belongs, so the list is forgotten.
    bool probud();

    /// The file of this full name is another song from now on.
    void zapomen(const QString& plneJmeno);
    /// The open song is about to get another full name, and takes its steps along.
    void prejmenuj(const QString& plneJmeno);

private:
    QString klic(const QString& plneJmeno) const;
    QString klicOtevrene() const;

    const Pisen& pisen_;
    const Drive& drive_;
    QHash<QString, SeznamKroku> seznamy_;
    QHash<QString, QByteArray> otisky_; ///< of the files of sleeping lists
};

} // namespace zvonika
