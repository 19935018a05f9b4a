#pragma once

#include "app/VolbaTabulky.h"
#include "ukazka/Hrac.h"
#include "ukazka/Pisnicka.h"

#include <QString>

namespace zvonika {

/// One conversion of the demonstration's song and what comes of it.
struct PrevodUkazky {
    int volba; ///< index of the target key
    bool heligonka;
    QString kopie;   ///< file name of the copy
    QString list;    ///< name of its sheet
    QString obrazek; ///< name of its pictures
};

/// The demonstration: a player's first evening with the program, played through the real windows with mouse
/// and keyboard events. Records the song, types its syllables, ends it, opens it again, steps to its end and
/// back, converts it into two other keys, and leaves a picture of each stage. Throws std::runtime_error with
/// the stage when something does not happen.
class Ukazka : private Hrac {
public:
    /// `slozkaObrazku`: existing native folder for the pictures; `tabulka`: what the program keeps its songs
    /// in.
    Ukazka(Program& program, const QString& slozkaObrazku, Tabulka tabulka);

    void prehraj();
    /// Native full name of the song that was recorded.
    const QString& souborPisne() const { return soubor_; }
    using Hrac::obrazku;

private:
    void zvolToninu();
    void zalozPisen();
    void zapisHmat(const HmatUkazky& hmat);
    void napisSlabiky();
    void pisDoTabulky(const QStringList& slabiky);
    void ukonciPisen();
    void otevriPisen();
    void prejdiPisen();
    void ukazInterval();
    void krokujAutomatem();
    void preved(const PrevodUkazky& prevod);
    void prekryjRady();
    void otocHmatnik();

    Tabulka tabulka_;
    QString soubor_;
    QVector<HmatUkazky> hmaty_;
};

} // namespace zvonika
