#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace zvonika {

/// What `frmKonverze` shows and what the user has set in it.
class StavKonverze : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // --- shown ---
    QString titulek = QStringLiteral("Konverze ladění.");
    QString cmdVyberPisen = QStringLiteral("Zde vyberte zdrojovou písničku.");
    bool vyberPovolen = true;
    bool lzeKonvertovat = true; ///< cmdVyberPisen, cmdGo and Label1 are there; otherwise lblKonec
    QString lblStupnice;        ///< the key in which the rows now being converted are written, as it stands
    QString lblLadeni;          ///< the new target key on its way into the resumed run; not shown
    bool pokracovatViditelne = false;
    bool ceka = false;    ///< the run waits at a key change for cmdPokracovat
    bool bezi = false;    ///< a click is being served: nothing else may be begun
    bool selhala = false; ///< a run has failed: its copy is neither the song nor converted
    int radek = 0;        ///< row being converted; 0 before the first
    bool zavreno = false;

    // --- set by the user ---
    std::optional<int> optStupnice; ///< index of the chosen target key, 0..14
    bool Check1 = false;            ///< make a version for the heligonka

    void oznamZmenu() { Q_EMIT zmeneno(); }

Q_SIGNALS:
    void zmeneno();
};

} // namespace zvonika
