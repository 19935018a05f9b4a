#pragma once

#include "song/SongPanel.h"
#include "song/SongSheet.h"

#include <functional>
#include <optional>

namespace zvonika {

class BassBoard;
class BassTable;
class TrebleBoard;
class ZobrazovaciOsnova;

/// What a stored grip is shown on.
struct PlochyHmatu {
    TrebleBoard& diskant;
    BassBoard& basy;
    const BassTable& tabulkaBasu;
    ZobrazovaciOsnova& osnova;
    SongPanel& panel;
};

/// Shows the grip of the current row: pull or push pictures of its treble and bass buttons, fingering,
/// display staff and the text panel. Marks of the grip being recorded and the red piano keys stay as they
/// are; a marked button that the shown grip lets go shows its red picture again. An interval that is shown
/// goes. Calls that are not given the rows around the cursor read them, in one block, and may throw
/// AutomationError.
class ZobrazeniHmatu {
public:
    /// Puts the fingering of column V on the buttons, with its own messages.
    using UkazPrstoklad = std::function<void(const QString& zaznam)>;

    /// One command that shows its row more than once: as long as this lives, the fingering of a row is put on
    /// once, so that its messages come once, and stays. Not to be nested.
    class JedenPrikaz {
    public:
        explicit JedenPrikaz(ZobrazeniHmatu& zobrazeni) : zobrazeni_(zobrazeni) {
            zobrazeni_.vPrikazu_ = true;
        }
        ~JedenPrikaz() {
            zobrazeni_.vPrikazu_ = false;
            zobrazeni_.ukazanyPrstoklad_.reset();
        }
        JedenPrikaz(const JedenPrikaz&) = delete;
        JedenPrikaz& operator=(const JedenPrikaz&) = delete;

    private:
        ZobrazeniHmatu& zobrazeni_;
    };

    ZobrazeniHmatu(Pisen& pisen, const PlochyHmatu& plochy, UkazPrstoklad ukazPrstoklad);

    /// True when the board shows the push side.
    bool zobrazenTlak() const { return zobrazenTlak_; }

    /// The grip of the current row on the side of `zobrazenTlak`. Its fingering is always the song's: where
    /// another workbook is in front, the song comes to the front for it. What it cannot show (foreign tones,
    /// unknown basses, what follows an empty cell) stands in `panel.upozorneni`, which it always sets.
    void ZobrazHmat(const VyrezPisne& vyrez);
    /// Pull side, then the cursor to column B.
    void cmdReadTah(const VyrezPisne& vyrez) { ukazNaStrane(false, vyrez); }
    void cmdReadTah() { cmdReadTah(list_.kolemKurzoru()); }
    /// Push side, then the cursor to column B.
    void cmdReadTlak(const VyrezPisne& vyrez) { ukazNaStrane(true, vyrez); }
    void cmdReadTlak() { cmdReadTlak(list_.kolemKurzoru()); }

    /// The grip of the current row on the side that its column I names (a missing direction keeps the side),
    /// without a box and without moving the cursor; a faulty fingering is told in `panel.upozorneni`. Returns
    /// the direction.
    SmerMechu ZobrazHmatPotichu(const VyrezPisne& vyrez);

    /// Only the text panel and the counter of the current row.
    void ZobrazTexty(const VyrezPisne& vyrez);
    /// Lets go what is shown of a grip: pictures, finger digits and staff. Does not read the sheet.
    void odeberHmat();

private:
    /// A fingering that the running command has put on.
    struct UkazanyPrstoklad {
        int radek = 0;
        QString zaznam;
        friend bool operator==(const UkazanyPrstoklad&, const UkazanyPrstoklad&) = default;
    };

    QString zaznamPrstokladu(const VyrezPisne& vyrez);
    void ukazNaStrane(bool tlak, const VyrezPisne& vyrez);
    void ukazHmat(const VyrezPisne& vyrez);
    void ukazTexty(const VyrezPisne& vyrez);
    void uvolniObrazky();
    void odeberPrstoklad();
    QStringList ukazTony(const QStringList& tony);
    QStringList ukazBasy(const QStringList& basy);
    QString jinaStrana(SmerMechu zapsany) const;
    QString upozorneni(const Grip& hmat, const QStringList& ciziTony, const QStringList& ciziBasy) const;

    Pisen& pisen_;
    SongSheet list_;
    PlochyHmatu plochy_;
    UkazPrstoklad ukazPrstoklad_;
    bool zobrazenTlak_ = false;
    bool vPrikazu_ = false;
    std::optional<UkazanyPrstoklad> ukazanyPrstoklad_; ///< nothing outside of `JedenPrikaz`
};

} // namespace zvonika
