#pragma once

#include "board/Nastroj.h"

#include <QObject>

#include <vector>

namespace zvonika {

enum class StavBasu { Volny, Cerveny, Tah, Tlak };

/// What the player has marked on the bass board and not recorded yet.
struct ZnackyBasu {
    struct Znacka {
        bool oznacen = false;
        bool nadHmatem = false; ///< touched after the shown grip; never where it shows nothing
        friend bool operator==(const Znacka&, const Znacka&) = default;
    };
    std::vector<Znacka> basy; ///< bass n is element n; element 0 is nobody's
    friend bool operator==(const ZnackyBasu&, const ZnackyBasu&) = default;
};

/// The bass buttons: marks (`ImgBas(n).Tag`) and pictures. A button shows what was last put on it, its
/// mark or the shown grip; the other is remembered.
class BassBoard : public QObject {
    Q_OBJECT
public:
    explicit BassBoard(const Nastroj& nastroj, QObject* parent = nullptr);

    const Nastroj& nastroj() const { return nastroj_; }
    bool oznacen(int bas) const;
    void nastavZnacku(int bas, bool oznacen);
    std::vector<int> oznacene() const; ///< the marked basses by rising number
    StavBasu stav(int bas) const;

    const ZnackyBasu& znacky() const { return znacky_; }
    /// Exchanges all marks for those of another time. The shown grip stays.
    void ukazZnacky(const ZnackyBasu& znacky);

    /// Shows that the grip presses the button; `smer` is Tah or Tlak.
    void ukazHmat(int bas, StavBasu smer);
    /// The grip lets all its buttons go; marks are seen again.
    void odeberHmat();

    /// Toggles the mark.
    void klik(int bas);
    /// All marks and pictures released.
    void uvolniBasy();

Q_SIGNALS:
    void basZmenen(int bas); ///< mark or picture

private:
    using Znacka = ZnackyBasu::Znacka;
    void zmen(int bas, const Znacka& znacka, StavBasu hmat);

    Nastroj nastroj_;
    std::vector<StavBasu> hmat_; ///< by number; what the shown grip says: Tah, Tlak or nothing
    ZnackyBasu znacky_;
};

} // namespace zvonika
