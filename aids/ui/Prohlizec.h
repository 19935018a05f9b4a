#pragma once

#include "aids/PovoleneAdresy.h"

#include <QString>
#include <QUrl>
#include <QWidget>

#include <functional>

namespace zvonika {

/// What a browser control tells the window that holds it.
class SledovaniProhlizece {
public:
    /// A navigation is complete, also one that ended on an error page.
    virtual void prejito(const QUrl& adresa) = 0;
    /// Back or forward became possible or impossible.
    virtual void historieZmenena() = 0;
    /// A link leads to something that the control does not show; the user's own program may. `zvoleny`: he
    /// has chosen this very link; otherwise the page has led him there.
    virtual void odkazVen(const QUrl& adresa, bool zvoleny) = 0;
    /// One line for the user: why something was not done.
    virtual void oznameno(const QString& veta) = 0;
    /// Answer to `najdi`: the match that is shown, counted from 1, and how many there are; 0 of 0: none.
    virtual void nalezeno(int kolikaty, int celkem) = 0;

protected:
    ~SledovaniProhlizece() = default;
};

/// A browser control. It is a widget, owned by its parent like any other, and shows only what
/// `PovoleneAdresy` allows. No call fails: what cannot be shown ends on the control's own error page.
class Prohlizec {
public:
    virtual ~Prohlizec() = default;

    virtual QWidget* widget() = 0;
    virtual void prejdi(const QUrl& adresa) = 0;
    virtual void zpet() = 0; ///< nothing where there is no history; `vpred` likewise
    virtual void vpred() = 0;
    virtual bool muzeZpet() const = 0;
    virtual bool muzeVpred() const = 0;
    virtual void obnov() = 0;
    virtual void zastav() = 0;
    virtual bool zaneprazdnen() const = 0; ///< a page is being loaded
    virtual QString titulek() const = 0;   ///< of the page that is shown; may be empty
    /// Looks for a text in the page, on from the match shown last; "" ends the search.
    virtual void najdi(const QString& text, bool dozadu) = 0;
};

/// Where a browser control is to stand; everything outlives it.
struct MistoProhlizece {
    const PovoleneAdresy& povolene;
    SledovaniProhlizece& sledovani;
    QWidget* rodic;
};

struct VytvorenyProhlizec {
    Prohlizec* prohlizec; ///< never null; owned by the parent widget
    QString duvodNahrady; ///< why it is the lighter view and no real browser; empty: it is one
};

using TvurceProhlizece = std::function<VytvorenyProhlizec(const MistoProhlizece&)>;

/// What the plug-in with the web engine offers.
class TovarnaProhlizece {
public:
    virtual ~TovarnaProhlizece() = default;
    virtual Prohlizec* vytvor(const MistoProhlizece& misto) = 0;
};

} // namespace zvonika

Q_DECLARE_INTERFACE(zvonika::TovarnaProhlizece, "zvonika.TovarnaProhlizece/1")
