#pragma once

#include "app/BehProgramu.h"
#include "app/Konverzace.h"
#include "app/OknoNapovedy.h"
#include "app/RozvodPrikazu.h"
#include "app/UdalostiOkna.h"
#include "app/ZapojeniOkna.h"
#include "app/ui/Form1.h"
#include "platform/ui/PlainToolTips.h"
#include "playing/stepping/Automat.h"

#include <QObject>

namespace zvonika {

/// The running program: models, conversations and the main window, and what joins them. The composition root
/// hands in the outside world.
class Program : public QObject, private SpreadsheetListener {
    Q_OBJECT
public:
    explicit Program(const Prostredi& prostredi);
    ~Program() override;

    /// The program's entry: start-up, then the main window is shown (not modal). False when the start-up
    /// sequence was cut short by an error, which has been reported.
    bool Main();

    Form1& okno() { return okno_; }
    Modely& modely() { return modely_; }
    /// Carries out a command by its control name; one that is disabled does nothing.
    void proved(const QString& prikaz) { prikazy_.proved(prikaz); }
    /// Brings the main window, or the help window that stands in for it, to the front and gives it the
    /// keyboard.
    void prejdiNaHlavniOkno();

    /// The pedal was pressed in the sheet's window: a step onward (back) by the bellows where the song is in
    /// front there; false, and nothing, where it is not.
    bool krokPedalu(bool dopredu);

    QString tonina() const { return modely_.tonina.stupnice().text(); }
    /// Row of the sheet's cursor, 1..; 0: there is none to tell.
    int aktualniRadek() const;
    QString pracovniSlozka() const { return prostredi_.drive.nativePath(pracovniAdresar); }

private:
    CastiProgramu casti();
    KrokAutomatu krokAutomatu();
    bool volnoProKrok() const;
    void nabidniNeulozene();
    bool hracPise() const;
    bool jePisenVpredu() const;

    void cursorMoved() override;
    void cellsEdited() override { cursorMoved(); }
    void workbookRenamed(const QString& before, const QString& now, const QString& fullName) override;
    void troubleChanged() override { udalosti_.ukazStav(); }

    Prostredi prostredi_;
    PlainToolTips napovedyPrvku_;
    Modely modely_;
    UdalostiOkna udalosti_;
    Konverzace konverzace_;
    Automat automat_;
    Form1 okno_;
    OknoNapovedy napoveda_;
    BehProgramu beh_;
    RozvodPrikazu prikazy_;
    ZapojeniOkna zapojeni_;
};

} // namespace zvonika
