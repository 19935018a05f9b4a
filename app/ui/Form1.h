#pragma once

#include <QHash>
#include <QMainWindow>

#include <functional>

class QAction;
class QComboBox;
class QLabel;
class QMenu;

namespace zvonika {

class CommandStates;
class ElidovanyPopisek;
class PrikazoveTlacitko;
class SongPanel;
class Timer1;
class TrebleBoard;
class TwipsScene;
struct PolozkaMenu;
struct TlacitkoPrikazu;

/// The main window: one scene with everything of a grip, menus and command buttons. It forwards clicks by
/// control name and shows what the models say; it decides nothing.
class Form1 : public QMainWindow {
    Q_OBJECT
public:
    Form1(SongPanel& panel, CommandStates& stavy, TrebleBoard& hmatnik, Timer1& timer1);

    /// Places a control of another folder in the scene.
    void umisti(QWidget* prvek, const QRect& twips);
    /// Keeps the window above all others.
    void nastavVzdyNahore();
    /// Tab order of the scene: the controls in the order of the work.
    void nastavPoradi(const QList<QWidget*>& poradi);
    /// Paints at once what waits to be painted.
    void domaluj();
    QWidget* prvek(const QString& jmeno) const;

    /// Called by `closeEvent`, once; the window closes in any case.
    std::function<void()> priZavreni;

Q_SIGNALS:
    void prikaz(const QString& jmeno);     ///< a button or menu entry was chosen
    void listVybran(const QString& nazev); ///< the user chose a sheet in Combo1
    void tempoZmeneno(int pozice);         ///< the user moved Slider1

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void postavTlacitka();
    void pridejTlacitko(const TlacitkoPrikazu& radek);
    void pridejZkratku(PrikazoveTlacitko& tlacitko, const QString& klavesy);
    void spojSousedy();
    void postavVyberListu();
    void postavPopisky();
    void postavAutomat(Timer1& timer1);
    void postavMenu();
    void pridejPolozku(QMenu& menu, const PolozkaMenu& polozka);
    void postavStavovyRadek();
    ElidovanyPopisek* radekStavu(const QString& jmeno, int dil);
    void ukazPanel();
    void ukazPrstoklad();
    void ukazVarovani();
    bool vejdeSeVedle(const QString& varovani) const;
    void ukazListy();
    void ukazBarvuKroku();
    void ukazKroky();
    void ukazZaskrtnuti();
    void povol(const QString& jmeno, bool povolit);

    SongPanel& panel_;
    CommandStates& stavy_;
    TrebleBoard& hmatnik_;
    TwipsScene* scena_;
    QHash<QString, PrikazoveTlacitko*> tlacitka_;
    QHash<QString, QAction*> akce_;
    QComboBox* combo_ = nullptr;
    QLabel* lblTon_ = nullptr;
    ElidovanyPopisek* lblLadeni_ = nullptr;
    ElidovanyPopisek* varovani_ =
        nullptr; ///< before it in the status line; hidden where there is nothing to warn of
    ElidovanyPopisek* stav_ = nullptr;
    ElidovanyPopisek* prstoklad_ = nullptr; ///< behind it; hidden where no finger waits
};

/// Extent of the main window's scene in twips.
inline constexpr int sirkaSceny = 16000;
inline constexpr int vyskaSceny = 10400;

} // namespace zvonika
