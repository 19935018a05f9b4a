#pragma once

#include <QString>

#include <array>
#include <optional>

namespace zvonika {

class Dialogs;
class Drive;
struct Pisen;

/// The texts of `frmZmenaCesty`; the captions of options 0 and 1 are the folders.
namespace textyCesty {
inline const QString titulek = QStringLiteral("Změna implicitní cesty při otvírání souborů v Excelu.");
inline const QString Label1 =
    QStringLiteral("Aktuální nastavení netýkající se Tamíka ale přímo Microsoft Excelu je do složky");
inline const QString Label2 = QStringLiteral(
    "Jestliže si přejete toto nastavení změnit vyberte jednu z předvolených možností,  u té předposlední "
    "vyplňte existující cestu podle Vašeho specifického požadavku. Špatně nastavená cesta může zapříčinit "
    "pracnější postup při otvírání a také ukládání Vašich dokumentů v aplikaci Excel. To neplatí pro "
    "písničky "
    "tohoto programu, které jsou vždy ukládány do C:\\Dokumenty\\Heligonka\\Zvonika  bez ohledu na toto "
    "nastavení.");
inline const std::array<QString, 4> Option1{
    QStringLiteral("C:\\Dokumenty"), QStringLiteral("D:\\Dokumenty"), QStringLiteral("Jiná cesta"),
    QStringLiteral("Cesta z doby, kdy byl Excel na PC nainstalován s ohledem na profil uživatele.")};
inline const QString OKButton = QStringLiteral("Ok");
inline const QString CancelButton = QStringLiteral("Cancel");
} // namespace textyCesty

/// The option of the folder that the user types.
inline constexpr int volbaJinaCesta = 2;

/// What the default folder dialog `frmZmenaCesty` does: it chooses the folder that the spreadsheet
/// application is given back at shutdown. Only the remembered folder changes; the folder of the run stays.
class ZmenaCesty {
public:
    ZmenaCesty(Pisen& pisen, const Drive& drive, Dialogs& dialogs);

    const QString& lblStaraCesta() const;
    /// `vybrana`: selected option 0..3, if any; `txtCesta`: what is typed for option 2, where the empty text
    /// changes nothing. Option 3 remembers a folder that cannot exist: a spreadsheet application that is
    /// handed such a folder goes back to the default of its own. True when the dialog is to be closed.
    bool OKButton(std::optional<int> vybrana, const QString& txtCesta);

private:
    void obnovPuvodni();
    bool nastav(const QString& slozka);

    Pisen& pisen_;
    const Drive& drive_;
    Dialogs& dialogs_;
};

} // namespace zvonika
