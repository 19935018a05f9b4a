#pragma once

#include "theory/NotovaOsnova.h"
#include "theory/ui/MistaZapisu.h"

#include <QWidget>

namespace zvonika {

class OsnovaPainter;
class PaletaZnamenek;
class clsNotyZapis;

/// The entry staff `osnovaZapisu`: notes are put, moved and removed with the mouse or from the keyboard.
/// Every change goes through `clsNotyZapis`; afterwards a signal says what the user did. Changes from
/// elsewhere give no signal.
///
/// Mouse: with `picNota` a click puts a note into the next free slot, a drag moves one (done at the release);
/// with a sign a click puts it in front of a note, or takes it away again; the right button removes. Keys:
/// arrows, # b n (also + - 0), Enter or Insert, Delete, Escape.
class ZapisovaciOsnova : public QWidget {
    Q_OBJECT
public:
    ZapisovaciOsnova(NotovaOsnova& osnova, clsNotyZapis& zapis, QWidget* parent = nullptr);

    const MistaZapisu& mista() const { return mista_; }
    QSize sizeHint() const override { return {232, 153}; }

Q_SIGNALS:
    void notaVlozena(int slot);
    /// `puvodni`: the tone that stood in the slot before.
    void notaPosunuta(int slot, CisloTonu puvodni);
    void znamenkoZmeneno(int slot, CisloTonu puvodni);
    void notaOdebrana(int slot, CisloTonu puvodni);
    /// Why nothing was done; a Czech sentence for the status line.
    void odmitnuto(const QString& duvod);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// A note that is not there yet: under the pointer, or on its way to another place.
    struct Duch {
        int slot;
        PolohaNoty poloha;
    };
    enum class Tah { Zadny, Vklada, Posouva };

    void prevezmiZmenu();
    void rozmisti();
    void popis();

    std::optional<int> notaPod(const QPointF& misto, bool presne) const;
    void ukazDucha(std::optional<Duch> duch);
    std::optional<Duch> duchVolnehoSlotu(double y) const;
    void stiskLevy(const QPointF& misto);
    void zrusTah();

    bool obsluzKlavesu(int klavesa, const QString& text);
    void vyberVedlejsi(int krok);
    void posunKlavesou(int krok);
    bool jeVolno(int jednotky) const;
    void vlozKlavesou();

    void vloz(int jednotky);
    void posun(int slot, int jednotky);
    void dejZnamenko(int slot, Znamenko znamenko);
    void odeber(int slot);
    void odmitni(const PolohaNoty& poloha);

    void kresliSloty(QPainter& painter) const;
    void kresliNoty(OsnovaPainter& kresba) const;
    void kresliNazvy(QPainter& painter) const;

    NotovaOsnova& osnova_;
    clsNotyZapis& zapis_;
    PaletaZnamenek* paleta_;
    MistaZapisu mista_;
    Tah tah_ = Tah::Zadny;
    std::optional<Duch> duch_;
    int posledniPoloha_ = 660; ///< where the keyboard puts the next note: g1 first
};

} // namespace zvonika
