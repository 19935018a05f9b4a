#pragma once

#include "conversion/BehKonverze.h"
#include "conversion/ZdrojKonverze.h"

namespace zvonika {

class KopiePisne;

/// The conversation of `frmKonverze`, one object for each time the dialog is opened: the song on the active
/// sheet is saved as a copy, and the copy is rewritten into another key. Every procedure may throw
/// AutomationError; while one runs, another does nothing.
class Konverze {
public:
    /// `zpracujZpravy` lets pending window messages be processed; it is called often during a run.
    Konverze(Pisen& pisen, Dialogs& dialogs, Drive& drive, StavKonverze& stav,
             std::function<void()> zpracujZpravy);

    /// Before the dialog is shown.
    void Form_Load() { zdroj_.prevezmi(); }
    /// After the dialog has closed.
    void Form_Unload() { zdroj_.vrat(); }

    void cmdVyberPisen();
    void cmdGo();
    void cmdPokracovat();
    /// Closes the dialog. A running conversion stops behind the row that it is at, and closes it then.
    void cmdKonec();

    /// The main window's song is the copy now and is to be shown.
    bool predanaKopie() const { return zdroj_.jeZHlavnihoOkna() && !kopie_.isEmpty(); }
    /// What the status line has to tell: what was lost, where the copy is; "" when there is nothing.
    QString veta() const;

private:
    class Obsluha;

    void zacni();
    bool lzeZacit(const std::optional<QString>& cilova);
    bool pripravKopii(const QString& cilova);
    void pripravList(KopiePisne& kopie, const QString& cilova);
    void pokracuj(const QString& cilova);
    BehKonverze beh(const QString& cilova);
    void proved(const QString& cilova, KonecBehu (BehKonverze::*odkud)());
    void poBehu(KonecBehu konec);
    void dokonci();
    void najdiNeprevedene();
    void prejmenujList(const QString& jmeno);
    void cekejNaStupnici();
    void zavri();
    bool odmitni(const QString& nadpis, const QString& text, Icon ikona = Icon::Critical);

    Pisen& pisen_;
    Dialogs& dialogs_;
    Drive& drive_;
    StavKonverze& stav_;
    clsKonverze konverze_;
    ZdrojKonverze zdroj_;
    ZtratyKonverze ztraty_;
    QString cilova_;                      ///< target key of the run
    QString kopie_;                       ///< file name of the copy; "" before there is one
    QString puvodniList_, rozdelanyList_; ///< name of the copy's sheet before and during the run
    QString odmitnuteJmeno_;              ///< that the copy's sheet could not get
    bool dokoncena_ = false;
    bool zastavit_ = false;
};

} // namespace zvonika
