#pragma once

#include "board/Nastroj.h"

#include <QObject>
#include <QString>

#include <vector>

namespace zvonika {

/// What a button's picture shows.
enum class StavKnofliku { Volny, Cerveny, Tah, Tlak, Hnedy };

/// Background of a piano key. The names are the system colours that the keys are said to have: caption text
/// is the white of naturals, window text the black of accidentals; one key starts in window background.
enum class BarvaKlavesy { CaptionText, WindowText, WindowBackground, Cervena, Hneda };

/// How far up the last touch of a button lies. What was shown there later covers it.
enum class Dotek { Dole, NadHmatem, NadIntervalem };

/// What the player has marked on the treble board and not recorded yet.
struct ZnackyDiskantu {
    struct Znacka {
        bool oznacen = false;
        Dotek dotek = Dotek::Dole; ///< Dole where neither a grip nor an interval shows anything
        BarvaKlavesy klavesa = BarvaKlavesy::CaptionText; ///< Cervena where marked
        QString tonKlavesy;
        friend bool operator==(const Znacka&, const Znacka&) = default;
    };
    std::vector<Znacka> knofliky; ///< button n is element n; element 0 is nobody's
    std::vector<int> poradi;      ///< the marked buttons in the order of marking
    friend bool operator==(const ZnackyDiskantu&, const ZnackyDiskantu&) = default;
};

/// The treble board as it is shown and marked: pictures, marks, captions and the piano beside it. Knows
/// nothing of songs. Buttons are numbered as on its instrument; any other number is a programming error.
///
/// What a button shows is what was last put on it: the mark (red or free), the shown grip or the interval.
/// What lies under it is remembered and seen again when that is taken away.
class TrebleBoard : public QObject {
    Q_OBJECT
public:
    explicit TrebleBoard(const Nastroj& nastroj, QObject* parent = nullptr);

    const Nastroj& nastroj() const { return nastroj_; }

    bool oznacen(int n) const; ///< lbl(n).Tag is "1"
    /// Marks the button (red, and its key) or releases it (free, the key in its own colour and nameless).
    void nastavZnacku(int n, bool oznacen);
    /// The marked buttons by rising number.
    std::vector<int> oznacene() const;
    /// The button marked last among those that are marked; 0 when none is.
    int posledniOznaceny() const { return znacky_.poradi.empty() ? 0 : znacky_.poradi.back(); }

    const ZnackyDiskantu& znacky() const { return znacky_; }
    /// Exchanges all marks for those of another time. Grip and interval stay; what they covered then they
    /// cover again.
    void ukazZnacky(const ZnackyDiskantu& znacky);

    StavKnofliku stav(int n) const;          ///< picture of the main button
    StavKnofliku stavPomocneho(int n) const; ///< picture of the auxiliary button, Volny where there is none

    /// Shows that the grip presses the button; `smer` is Tah or Tlak.
    void ukazHmat(int n, StavKnofliku smer);
    /// The grip lets all its buttons go, and the interval with it; marks are seen again.
    void odeberHmat();

    /// Shows button and key of an interval's tone in brown, in place of an interval shown before.
    void ukazInterval(int n);
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
    QString tonKlavesy(int n) const; ///< caption of lblTonKlav(n)
    void nastavTonKlavesy(int n, const QString& ton);
    /// Spells the names beside the keys in another key.
    void prejmenujKlavesy(const QString& stupnice);
    void vyprazdniTonyKlaves();

    void nastavZabranu(int rada, bool zakryta); ///< row cover 1..`pocetRad`
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

    /// Pictures and marks of all buttons released, and their keys.
    void uvolniDiskant();
    /// Piano keys back to their colours and without names; marks of the accidental buttons only are reset.
    void uvolniKlavesy();

Q_SIGNALS:
    void knoflikZmenen(int n);  ///< picture, mark or caption of button n
    void klavesaZmenena(int n); ///< colour or label of key n
    void zabranyZmeneny();
    void cislovaniZmeneno();
    void hmatnikOtocen();
    void nazvyZmeneny(); ///< names switched on or off

private:
    struct Pohled; ///< what is seen of a button and its key
    using Znacka = ZnackyDiskantu::Znacka;

    struct Knoflik {
        StavKnofliku hmat = StavKnofliku::Volny; ///< what the shown grip says: Tah, Tlak or nothing
        QString popis, popisPomocneho, nazev;
    };
    Knoflik& knoflik(int n) { return knofliky_.at(static_cast<std::size_t>(n)); }
    const Knoflik& knoflik(int n) const { return knofliky_.at(static_cast<std::size_t>(n)); }
    Znacka& znacka(int n) { return znacky_.knofliky.at(static_cast<std::size_t>(n)); }
    const Znacka& znacka(int n) const { return znacky_.knofliky.at(static_cast<std::size_t>(n)); }

    Dotek nejvyse(int n) const;
    Pohled pohled(int n) const;
    void oznamZmenu(int n, const Pohled& predtim);
    void vratBarvuKlavesy(int n);

    bool jePulton(int n) const { return nastroj_.knoflik(n).pulton; }
    bool maPomocny(int n) const { return nastroj_.knoflik(n).pomocny.has_value(); }

    Nastroj nastroj_;
    std::vector<Knoflik> knofliky_; ///< by number
    ZnackyDiskantu znacky_;
    int interval_ = 0;          ///< the button whose tone it is; 0 where none is shown
    std::vector<bool> zabrany_; ///< by number
    bool nazvy_ = false;
    bool cislovani_ = false;
    bool obraceneCislovani_ = false;
    bool otoceno_ = false;
    bool slovoViditelne_ = false; ///< "otočeno"
};

} // namespace zvonika
