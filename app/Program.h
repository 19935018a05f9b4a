#pragma once

#include "app/Konverzace.h"
#include "app/ObsluhaUdalosti.h"
#include "app/OknoNapovedy.h"
#include "app/Spusteni.h"
#include "app/ui/Form1.h"
#include "playing/stepping/Automat.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

namespace zvonika {

class ZapisovaciOsnova;

/// The running program: models, conversations and the main window, wired to each other. The composition root
/// hands in the outside world.
class Program : public QObject, private SpreadsheetListener {
    Q_OBJECT
public:
    explicit Program(const Prostredi& prostredi);
    ~Program() override;

    /// The program's entry: start-up, then the main window is shown (not modal). False when the start-up
    /// sequence was cut short by an error, which has been reported.
    bool Main();

    Form1& okno() { return *okno_; }
    Modely& modely() { return modely_; }
    /// Chosen by a control name: runs what the button or menu entry is for.
    void proved(const QString& prikaz);
    /// Brings the main window, or the help window that stands in for it, to the front and gives it the
    /// keyboard.
    void prejdiNaHlavniOkno();

    QString tonina() const { return modely_.tonina.stupnice().text(); }
    int aktualniRadek() const;
    QString pracovniSlozka() const { return prostredi_.drive.nativePath(pracovniAdresar); }

private:
    using Obsluha = std::function<void()>;

    void zaregistrujPrikazy();
    void zaregistrujPomucky();
    void postavNastroje();
    void postavHmatnik();
    void postavOsnovy();
    void postavVolbuIntervalu();
    void pripojOsnovuZapisu(ZapisovaciOsnova& zapis);
    void ukazToninu();
    void prejdiNaPozici(int pozice);
    void propojModely();
    void nastavPoradiFokusu();
    bool Form_Load(const SpreadsheetLauncher& spoustec);
    bool chceNahradniTabulku() const;
    KrokySpusteni krokySpusteni(const SpreadsheetLauncher& spoustec);
    void vyberStupnici();
    KrokAutomatu krokAutomatu();
    bool volnoProKrok() const;
    void poPrikazu();
    bool provedUdalost(const Obsluha& obsluha);
    void Form_Unload();
    void prejdiNaTabulku();
    void ponechKlavesnici();
    void nastavZkratky();

    void cursorMoved() override;
    void cellsEdited() override;

    Prostredi prostredi_;
    Modely modely_;
    ObsluhaUdalosti udalosti_;
    Konverzace konverzace_;
    Automat automat_;
    QHash<QString, Obsluha> prikazy_;
    std::unique_ptr<Form1> okno_;
    OknoNapovedy napoveda_;
};

} // namespace zvonika
