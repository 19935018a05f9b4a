#pragma once

#include <QString>
#include <QUrl>

namespace zvonika {

/// Which addresses the help window may show. Files only from the manual's folder and what lies below it,
/// links followed to where they really lead; pages of the web; everything else not at all.
class PovoleneAdresy {
public:
    enum class Zachazeni {
        Zobrazit, ///< may be shown, and loaded as part of a page
        Ven,      ///< for another program of the user: mail
        Odmitnout ///< neither
    };

    /// `slozkaPrirucky`: native folder of the manual.
    explicit PovoleneAdresy(const QString& slozkaPrirucky) : slozka_(slozkaPrirucky) {}

    Zachazeni zachazeni(const QUrl& adresa) const;

    /// What the user typed as an address: a web address, or a file as it is called in the manual's folder.
    QUrl zTextu(const QString& text) const;

    const QString& slozka() const { return slozka_; }

private:
    bool lezi(const QString& soubor) const;

    QString slozka_;
};

} // namespace zvonika
