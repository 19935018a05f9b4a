#pragma once

#include "theory/CisloTonu.h"
#include "theory/Key.h"
#include "theory/PolohaNoty.h"
#include "theory/Predznamenani.h"

#include <QObject>

#include <array>
#include <optional>

namespace zvonika {

/// A note of the entry staff.
struct NotaOsnovy {
    PolohaNoty poloha; ///< the sign drawn in front of the head, and its line or space
    CisloTonu ton;     ///< the treble button that it stands for

    friend bool operator==(const NotaOsnovy&, const NotaOsnovy&) = default;
};

/// The entry staff as it is shown: the key signature, five note slots and the selected slot. What a note
/// means is `clsNotyZapis`'s business. Slots are numbered 0..4; any other number is a programming error.
class NotovaOsnova : public QObject {
    Q_OBJECT
public:
    static constexpr int pocetNot = 5;
    static constexpr int pocetOdrazek = 7;
    using Noty = std::array<std::optional<NotaOsnovy>, pocetNot>;

    explicit NotovaOsnova(QObject* parent = nullptr);

    const Noty& noty() const { return noty_; }
    const std::optional<NotaOsnovy>& nota(int slot) const { return noty_.at(static_cast<std::size_t>(slot)); }
    /// The first empty slot; nothing when all five are taken.
    std::optional<int> volnySlot() const;
    /// The slot that stands for the tone.
    std::optional<int> slotTonu(CisloTonu ton) const;
    std::optional<int> vybranySlot() const { return vybrany_; }

    /// The key that the staff is prepared for, and its signature.
    const Key& stupnice() const { return stupnice_; }
    const Predznamenani& predznamenani() const { return predznamenani_; }

    /// `picOdrazka(i)`, 0..6: sign `i` of the key signature is cancelled by a natural in front of some note.
    bool odrazka(int i) const;

    void polozNotu(int slot, const NotaOsnovy& nota);
    void odeberNotu(int slot);
    /// Only a slot with a note can be selected.
    void vyberSlot(std::optional<int> slot);
    /// Key, signature and the notes respelled for it, in one change.
    void nastavStupnici(const Key& stupnice, const Noty& noty);

    void odeberNoty();
    /// Takes sharps and flats from the notes. They then sound as they read; a note whose tone is not on the
    /// board, or is there already, goes too.
    void odeberPultony();
    /// Takes naturals from the notes, with the same consequence.
    void odeberOdrazky();

Q_SIGNALS:
    void changed();

private:
    template <typename Podminka>
    void odeberZnamenka(Podminka podminka);
    void nastavNoty(const Noty& noty);

    Noty noty_;
    std::optional<int> vybrany_;
    Key stupnice_ = Key::vyberteToninu();
    Predznamenani predznamenani_;
};

} // namespace zvonika
