#pragma once

#include "ukazka/Hrac.h"

#include <QRect>
#include <QString>

namespace zvonika {

/// The pictures of the manual, taken from the real windows while a player works with the sample song. They
/// are as fine as the screen's scale factor makes them.
class ObrazkyPrirucky : private Hrac {
public:
    /// `slozka`: existing native folder for the pictures; `pisen`: file name of the song in the working
    /// folder.
    ObrazkyPrirucky(Program& program, const QString& slozka, const QString& pisen);

    /// Records some grips and ends the process in the middle of the work: the next start finds them unsaved.
    [[noreturn]] void spadni();
    /// Takes all pictures. Throws std::runtime_error with the stage when something does not happen.
    void vyfot();

private:
    void cteni();
    void zapis();
    void dialogy();
    void hmatnik();
    void otevri();
    void oznacSPrstem(const QString& knoflik, const QString& prst);
    void opustPrvek();
    void oznac(const QStringList& prvky);
    void prejdiNa(int radek);
    void sDialogem(const QString& polozkaMenu, const QString& nazev, const QString& konec);
    void snimek(const QString& nazev, QWidget* okno, const QRect& vyrez = {});
    void snimekSceny(const QString& nazev, const QRect& twips);
    void snimekOkna(const QString& nazev);

    QString pisen_;
};

} // namespace zvonika
