#pragma once

#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "song/SongSheet.h"
#include "theory/TabulkaNot.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zvonika {

/// Answers of `ZmenaLadeni`, to the letter.
namespace odpovediZmeny {
inline const QString zmenit = QStringLiteral("Zmenit");
inline const QString ne = QStringLiteral("Ne");
inline const QString storno = QStringLiteral("Storno");
} // namespace odpovediZmeny

/// The services of the conversion. Keys are texts and are taken as they stand; the fifteen keys that can be
/// converted are written as in `toniny`.
class clsKonverze {
public:
    /// `zpracujZpravy` lets pending window messages be processed; it is called from within `Konvertuj` and
    /// may come back here by way of an event.
    clsKonverze(Pisen& pisen, Dialogs& dialogs, Drive& drive, std::function<void()> zpracujZpravy);

    /// The tone in the target key, by the entries 1 to 56 of the table "konverze.xml", which is read afresh
    /// at every call. Nothing where no entry has the tone, or where anything fails. A source key may be
    /// written "C Dur"; a target key so written is not in the table.
    std::optional<QString> Konvertuj(const QString& zdrojova, const QString& cilova, const QString& ton);

    /// Creates "<song> <key>.xls" in the working folder with one sheet "Tonavox12" and the syllables
    /// (A1:A900) of the current song. `zdrojovySoubor` ends in ".xls". False when the user keeps a file of
    /// that name, and when saving fails, which is not reported: the new workbook then stays open, unsaved.
    bool VytvorCilovySoubor(const QString& cilova, const QString& zdrojovySoubor);

    /// Cell W1 of an open workbook, "" when it is empty. Throws AutomationError.
    QString ZjistiZapsaneLadeni(const QString& sesit);

    /// Asks what to do where the key changes inside the song; one of `odpovediZmeny`.
    QString ZmenaLadeni(const QString& soucasna, const QString& nova, const QString& radek);

    /// What was wrong with the table when `Konvertuj` read it last; "" when nothing was.
    const QString& chybaTabulky() const { return tabulka_.chyba(); }

private:
    QString bezMezery(const QString& stupnice);
    std::optional<QString> najdiTon(const QString& zdroj, const QString& cil, const QString& ton);
    bool ExistujeSlozka(const QString& cesta) const;
    void zalozSlozku();
    bool SouborZustava(const QString& cesta, std::vector<std::unique_ptr<SetAside>>& puvodni);
    void zalozSesit(const QString& plneJmeno);
    void prenesSlabiky();

    Pisen& pisen_;
    Dialogs& dialogs_;
    Drive& drive_;
    std::function<void()> zpracujZpravy_;
    TabulkaNot tabulka_;
};

} // namespace zvonika
