#pragma once

#include "board/TrebleLayout.h"

#include <QObject>
#include <QString>

#include <array>
#include <vector>

namespace zvonika {

/// What a button's picture shows.
enum class StavKnofliku { Volny, Cerveny, Tah, Tlak, Hnedy };

/// Background of a piano key. The names are the system colours that the keys are said to have: caption text
/// is the white of naturals, window text the black of accidentals; key 28 starts in window background.
enum class BarvaKlavesy { CaptionText, WindowText, WindowBackground, Cervena, Hneda };

/// The treble board as it is shown and marked: pictures, marks, captions and the piano beside it. Knows
/// nothing of songs. Buttons are numbered 1..49; any other number is a programming error.
class TrebleBoard : public QObject {
    Q_OBJECT
public:
    explicit TrebleBoard(QObject* parent = nullptr);

    // The mark that recording reads; independent of the picture.
    bool oznacen(int n) const; ///< lbl(n).Tag is "1"
    void nastavZnacku(int n, bool oznacen);
    /// The button marked last among those that are marked; 0 when none is.
    int posledniOznaceny() const { return poradiZnacek_.empty() ? 0 : poradiZnacek_.back(); }

    StavKnofliku stav(int n) const;          ///< picture of the main button
    StavKnofliku stavPomocneho(int n) const; ///< picture of the auxiliary button, Volny where there is none
    void ukaz(int n, StavKnofliku stav);     ///< both pictures
    void ukazHlavni(int n, StavKnofliku stav);
    void ukazPomocny(int n, StavKnofliku stav);

    /// Shows button and key of an interval's tone in brown, in place of an interval shown before.
    void ukazInterval(int n);
    /// What the brown had covered is shown again; what was set on the button since then stays.
    void odeberInterval();

    // Captions of the click areas: the tone's name where names are switched on, finger digits stacked above
    // it.
    QString popis(int n) const;          ///< caption of lbl(n)
    QString popisPomocneho(int n) const; ///< caption of lblSynchro(n)
    void nastavPopis(int n, const QString& popis);
    void nastavPopisPomocneho(int n, const QString& popis);
    /// Switches the tone names on the buttons; `stupnice` is the key they are spelled in. Fingers stay.
    void nastavNazvy(bool zapnuto, const QString& stupnice);
    bool nazvyZapnuty() const { return nazvy_; }
    /// Empties all captions, down to the names where these are switched on.
    void vyprazdniPopisy();

    BarvaKlavesy barvaKlavesy(int n) const;
    void nastavBarvuKlavesy(int n, BarvaKlavesy barva);
    /// Gives the key the colour of a released key: caption text for a natural, window text for an accidental.
    void vratBarvuKlavesy(int n);
    QString tonKlavesy(int n) const; ///< caption of lblTonKlav(n)
    void nastavTonKlavesy(int n, const QString& ton);
    void vyprazdniTonyKlaves();

    void nastavZabranu(int rada, bool zakryta); ///< row cover 1..5
    bool zakryta(int rada) const;
    void nastavCislovani(bool viditelne); ///< all number labels 0..31
    bool cislovani() const { return cislovani_; }
    QString popisCisla(int index) const; ///< caption of lblCisKnofl(index), 0..31
    bool cisloViditelne(int index) const;
    void nastavObraceneCislovani(bool obracene);
    bool obraceneCislovani() const { return obraceneCislovani_; }

    /// Turns the board over for good: rows run the other way, and number labels 12 down to 6 appear and spell
    /// "otočeno". Numbering switched on or off afterwards shows or hides them with the others.
    void otoc();
    bool otoceno() const { return otoceno_; }

    /// Pictures and marks of all buttons released.
    void uvolniDiskant();
    /// Piano keys back to their colours; marks of the accidental buttons only are reset.
    void uvolniKlavesy();

Q_SIGNALS:
    void knoflikZmenen(int n);  ///< picture, mark or caption of button n
    void klavesaZmenena(int n); ///< colour or label of key n
    void zabranyZmeneny();
    void cislovaniZmeneno();
    void hmatnikOtocen();
    void nazvyZmeneny(); ///< names switched on or off

private:
    struct Knoflik {
        bool oznacen = false;
        StavKnofliku stav = StavKnofliku::Volny;
        StavKnofliku stavPomocneho = StavKnofliku::Volny;
        QString popis, popisPomocneho, nazev;
        BarvaKlavesy klavesa = BarvaKlavesy::CaptionText;
        QString tonKlavesy;
    };
    Knoflik& knoflik(int n) { return knofliky_.at(static_cast<std::size_t>(n)); }
    const Knoflik& knoflik(int n) const { return knofliky_.at(static_cast<std::size_t>(n)); }

    std::array<Knoflik, pocetKnofliku + 1> knofliky_;
    /// What the brown of the interval's button covers; no button where `n` is 0.
    struct PodIntervalem {
        int n = 0;
        StavKnofliku stav = StavKnofliku::Volny;
        StavKnofliku stavPomocneho = StavKnofliku::Volny;
        BarvaKlavesy klavesa = BarvaKlavesy::CaptionText;
    };

    std::vector<int> poradiZnacek_;
    PodIntervalem podIntervalem_;
    std::array<bool, 6> zabrany_{};
    bool nazvy_ = false;
    bool cislovani_ = false;
    bool obraceneCislovani_ = false;
    bool otoceno_ = false;
    bool slovoViditelne_ = false; ///< "otočeno"
};

} // namespace zvonika
