#include "app/Sestava.h"

#include "app/DialogyPoZapisu.h"
#include "app/Modely.h"
#include "app/Program.h"
#include "app/RozmisteniOken.h"
#include "app/TabulkaLibreOffice.h"
#include "app/ui/IkonaProgramu.h"
#include "app/ui/UkazatelCekani.h"
#include "platform/HomeDrive.h"
#include "platform/IniSettingsStore.h"
#include "platform/PluginFolders.h"
#include "platform/QtWakeUpClock.h"
#include "platform/UserSettings.h"
#include "platform/media/SystemMedia.h"
#include "platform/ui/CzechTranslator.h"
#include "platform/ui/DesktopShell.h"
#include "platform/ui/QtDialogs.h"
#include "song/PopisSloupcu.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "spreadsheet/embedded/ui/SheetWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QPalette>
#include <QScreen>
#include <QStandardPaths>

namespace zvonika {

namespace {

/// Tables and manual stand beside the executable, or where the package put them.
QString slozkaProgramu() {
    const QString vedle = QCoreApplication::applicationDirPath();
    const QString instalovana = QDir(vedle).absoluteFilePath(QStringLiteral("../share/zvonika"));
    return QFile::exists(vedle + QStringLiteral("/tonavox.xml")) ? vedle : instalovana;
}

std::unique_ptr<SettingsStore> nastaveni(const QString& aplikace, const Umisteni& umisteni) {
    if (umisteni.nastaveni.isEmpty()) return userSettings(aplikace);
    return std::make_unique<IniSettingsStore>(umisteni.nastaveni + QLatin1Char('/') + aplikace +
                                              QStringLiteral(".ini"));
}

/// Where recovery journals are kept, whichever spreadsheet has the song open.
QString slozkaZaznamu(const Umisteni& umisteni) {
    if (umisteni.nastaveni.isEmpty()) return userStateFolder(nastaveniTabulky);
    return umisteni.nastaveni + QStringLiteral("/zaznamy");
}

/// Where Zvonika's own office keeps its profiles.
QString profilyLibreOffice(const Umisteni& umisteni) {
    const QString data = umisteni.nastaveni.isEmpty()
                             ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                   QStringLiteral("/zvonika")
                             : umisteni.nastaveni;
    return data + QStringLiteral("/libreoffice");
}

/// One light look everywhere: the instrument, the paper of the staff and the keys have colours of their own.
void nastavVzhled(QApplication& aplikace) {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette paleta(QColor(0xEF, 0xEB, 0xE2), QColor(0xF4, 0xF1, 0xEA));
    paleta.setColor(QPalette::Base, Qt::white);
    paleta.setColor(QPalette::Highlight, QColor(0x2B, 0x5F, 0xB8));
    paleta.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(paleta);
    QApplication::setWindowIcon(ikonaProgramu());
    static CzechTranslator cestina({QLibraryInfo::path(QLibraryInfo::TranslationsPath), slozkaProgramu()});
    aplikace.installTranslator(&cestina);
}

} // namespace

struct Sestava::Casti {
    explicit Casti(const Umisteni& umisteni)
        : nastaveniProgramu(nastaveni(QStringLiteral("Tonavox12"), umisteni)),
          nastaveniTabulky(nastaveni(zvonika::nastaveniTabulky, umisteni)), zaznamy(slozkaZaznamu(umisteni)),
          drive(umisteni.domov.isEmpty() ? QDir::homePath() : umisteni.domov, slozkaProgramu()),
          media(systemMedia(drive, pluginFolders())),
          libreOffice(drive, dialogs, nastaveni(QStringLiteral("Calc Zvoniky"), umisteni),
                      profilyLibreOffice(umisteni), zaznamy),
          program({dialogyPoZapisu, *nastaveniProgramu, drive, shell, tabulky(),
                   umisteni.hodiny ? *umisteni.hodiny : hodiny, *media, volbaProhlizece(pluginFolders()),
                   nastrojZvonika(), zaznamy}) {
        dialogs.setMainWindow(&program.okno());
        dialogyPoZapisu.dopis = [this] {
            if (const auto& excel = program.modely().pisen.aplikaceExcel) excel->finishWriting();
        };
        const QScreen* obrazovka = QApplication::primaryScreen();
        okna = rozmistiOkna(obrazovka ? obrazovka->availableGeometry() : QRect(0, 0, 1366, 768));
        libreOffice.nastavMisto(bezRamu(okna.tabulka));
    }

    TabulkoveProgramy tabulky() {
        return {
            {
                {Tabulka::Vestavena, nabidkaVestavene, [this] { return novaTabulka(); }},
                {Tabulka::LibreOffice, nabidkaLibreOffice, [this] { return libreOffice.spust(); },
                 [this] { libreOffice.spusteno(); }},
                {.volba = Tabulka::Excel,
                 .veta = QStringLiteral("Excel zatím Zvonika řídit neumí, pracuje s vestavěnou tabulkou.")},
            },
            VolbaTabulky(*nastaveniProgramu).zvolena()};
    }

    std::unique_ptr<SpreadsheetApplication> novaTabulka() {
        auto tabulka = std::make_unique<EmbeddedApplication>(
            drive, dialogs, *nastaveniTabulky, zaznamy,
            [this](SheetCommands& prikazy) { return oknoTabulky(prikazy); });
        tabulka->keepWindow([this] { cekani.ceka(); }, [this] { cekani.konec(); });
        return tabulka;
    }

    std::unique_ptr<SheetView> oknoTabulky(SheetCommands& prikazy) {
        auto okno = std::make_unique<SheetWindow>(prikazy, popisSloupcu());
        QObject::connect(okno.get(), &SheetWindow::f6Pressed, &program, &Program::prejdiNaHlavniOkno);
        okno->takePageKey = [this](bool dolu) { return program.krokPedalu(dolu); };
        umisti(*okno, okna.tabulka);
        return okno;
    }

    /// `misto` includes the frame, whose size is not known before the window stands on the screen.
    static QRect bezRamu(const QRect& misto) {
        constexpr int lista = 30;
        constexpr int ram = 2;
        return misto.adjusted(ram, lista, -ram, -ram);
    }
    static void umisti(QWidget& okno, const QRect& misto) {
        okno.move(misto.topLeft());
        okno.resize(bezRamu(misto).size());
    }

    std::unique_ptr<SettingsStore> nastaveniProgramu;
    std::unique_ptr<SettingsStore> nastaveniTabulky;
    JournalFolder zaznamy;
    HomeDrive drive;
    std::unique_ptr<Media> media;
    QtDialogs dialogs;
    DialogyPoZapisu dialogyPoZapisu{dialogs};
    DesktopShell shell;
    QtWakeUpClock hodiny;
    RozmisteniOken okna;
    UkazatelCekani cekani;
    TabulkaLibreOffice libreOffice;
    Program program;
};

Sestava::Sestava(QApplication& aplikace, const Umisteni& umisteni) {
    QCoreApplication::setApplicationVersion(QStringLiteral(ZVONIKA_VERSION));
    nastavVzhled(aplikace);
    casti_ = std::make_unique<Casti>(umisteni);
    Casti::umisti(casti_->program.okno(), casti_->okna.hlavni);
}

Sestava::~Sestava() = default;

Program& Sestava::program() {
    return casti_->program;
}

} // namespace zvonika
