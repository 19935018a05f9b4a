#pragma once

#include <QString>

#include <optional>

namespace zvonika {

class Dialogs;
class NotovaOsnova;
class Tonina;

/// The texts of `frmStupnice`; the captions of `optStupnice` are the names of `toniny`.
namespace textyStupnice {
inline const QString titulek = QStringLiteral("Znáte-li tóninu, vyberte a potvrďte Ok !");
inline const QString vyberteStupnici = QStringLiteral("Vyberte stupnici");
inline const QString slouziPro = QStringLiteral("Slouží pro nastavení před zapisováním skladby !");
inline const QString cmdOK = QStringLiteral("Ok");
inline const QString cmdHelp = QStringLiteral("Nápověda");
inline const QString cmdZrusit = QStringLiteral("Zrušit nastavení");
} // namespace textyStupnice

/// What the key dialog does. The dialog closes itself after `cmdOK` and `cmdZrusit`.
class VolbaStupnice {
public:
    VolbaStupnice(Dialogs& dialogs, Tonina& tonina, NotovaOsnova& osnova);

    /// The chosen key becomes the current one and the staff is prepared for it. `vybrana`: index of the
    /// selected option, 0..14; nothing selected makes the current key the empty text.
    void cmdOK(std::optional<int> vybrana);
    /// No key is chosen any more.
    void cmdZrusit();
    void cmdHelp();

private:
    Dialogs& dialogs_;
    Tonina& tonina_;
    NotovaOsnova& osnova_;
};

} // namespace zvonika
