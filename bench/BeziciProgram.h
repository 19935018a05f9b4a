#pragma once

#include "app/Sestava.h"
#include "app/VolbaTabulky.h"
#include "tests/support/RucniHodiny.h"

#include <QObject>
#include <QTemporaryDir>

#include <functional>

class QApplication;
class QWidget;

namespace zvonika::bench {

/// What one action of the player cost, in milliseconds.
struct CasAkce {
    double celkem = 0;         ///< from the click until the frames of both windows have reached the display
    double logika = 0;         ///< of it the click's own work, before anything is painted
    double obraz = 0;          ///< painting and layout of both windows
    double displej = 0;        ///< waiting until the display has taken what was painted
    double procesor = 0;       ///< processor time of this program in the whole of it
    int malbyHlavnihoOkna = 0; ///< widgets painted in the main window
    int malbyTabulky = 0;      ///< and in the sheet window
};

/// The spreadsheet that the command line asks for: "--tabulka=libreoffice", the built-in one without it.
Tabulka pozadovanaTabulka();

/// The real program over a spreadsheet, both windows on the screen, in a folder of its own. Everything that
/// fails throws std::runtime_error. Of a spreadsheet that is not built in only the calls are measured: it
/// paints in its own process and its own time.
class BeziciProgram : public QObject {
    Q_OBJECT
public:
    /// `hodiny`: the clock of automatic stepping; none: the system's.
    explicit BeziciProgram(QApplication& aplikace, testing::RucniHodiny* hodiny = nullptr,
                           Tabulka tabulka = Tabulka::Vestavena);
    ~BeziciProgram() override;

    Program& program() { return sestava_.program(); }

    /// Creates a song of `hmatu` filled rows and leaves it open on its first row.
    void zalozPisen(const QString& nazev, int hmatu);
    /// Opens a song by its file name: measured from the moment the file is chosen.
    CasAkce otevri(const QString& nazev);
    /// Puts the cursor of the spreadsheet into a row, as the program does it.
    void naRadek(int radek);

    /// Clicks a control of the main window.
    CasAkce klikni(const QString& jmeno);
    /// Carries out a command of a menu.
    CasAkce proved(const QString& prikaz);
    /// Moves the tempo slider to this position, -5 to 5.
    void nastavTempo(int pozice);
    /// Lets the tick of automatic stepping come that is due next; needs a clock that is turned by hand.
    CasAkce tik();
    /// Paints what waits to be painted.
    void domaluj();

protected:
    bool eventFilter(QObject* cil, QEvent* udalost) override;

private:
    CasAkce zmer(const std::function<void()>& akce);
    void cekejNaOkna();
    void odpovez(const std::function<void()>& akce, const QString& text);

    QTemporaryDir slozka_;
    testing::RucniHodiny* hodiny_;
    Sestava sestava_;
    std::function<void()> predPotvrzenim_;
    int malbyHlavnihoOkna_ = 0;
    int malbyTabulky_ = 0;
};

} // namespace zvonika::bench
