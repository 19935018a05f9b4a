#pragma once

#include "app/ukazka/Pisnicka.h"

#include <QString>

#include <functional>

class QWidget;

namespace zvonika {

class Program;

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
class Ukazka {
public:
    /// `slozkaObrazku`: existing native folder for the pictures.
    Ukazka(Program& program, const QString& slozkaObrazku);

    void prehraj();
    /// Native full name of the song that was recorded.
    const QString& souborPisne() const { return soubor_; }
    int obrazku() const { return obrazku_; }

private:
    void zvolToninu();
    void zalozPisen();
    void zapisHmat(const HmatUkazky& hmat);
    void napisSlabiky();
    void ukonciPisen();
    void otevriPisen();
    void prejdiPisen();
    void ukazInterval();
    void krokujAutomatem();
    void preved(const PrevodUkazky& prevod);
    void prekryjRady();
    void otocHmatnik();

    void klikni(const QString& jmeno);
    void dvojklikni(const QString& jmeno);
    void zvolVNabidce(const QString& jmeno); ///< menu entry by its control name
    QWidget* prvek(const QString& jmeno) const;
    QWidget* tabulka() const;
    /// Runs `akce`, during which modal windows come up; `obsluha` is what the player does with each of them.
    void sOknem(const std::function<void()>& akce, const std::function<void(QWidget*)>& obsluha);
    void cekej(const std::function<bool()>& podminka, const QString& nac);
    void obrazek(const QString& nazev);

    Program& program_;
    QString slozka_;
    QString soubor_;
    QVector<HmatUkazky> hmaty_;
    int obrazku_ = 0;
};

} // namespace zvonika
