#include "platform/Dialogs.h"
#include "song/SongPanel.h"
#include "song/ZobrazovaciOsnova.h"
#include "song/ui/PanelTextu.h"
#include "song/ui/PasWidget.h"
#include "song/ui/ZobrazovaciOsnovaWidget.h"
#include "theory/Tonina.h"
#include "theory/VolbaStupnice.h"
#include "theory/clsNotyZapis.h"
#include "theory/ui/FrmStupnice.h"
#include "theory/ui/ZapisovaciOsnova.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QTextStream>

using namespace zvonika;

namespace {

/// Nobody asks anything while pictures are taken.
class TicheDialogy : public Dialogs {
public:
    Answer message(const Message&) override { return Answer::Ok; }
    QString input(const QString&, const QString&) override { return {}; }
    std::optional<QString> openFile(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> saveFile(const QString&, const QString&, const QString&) override { return {}; }
};

/// Takes pictures of widgets at the size of a rectangle of twips.
class Fotograf {
public:
    explicit Fotograf(const QString& slozka) : slozka_(slozka) {}

    void vyfot(QWidget& widget, const QString& jmeno, const QSize& twips) {
        for (const double meritko : {0.87, 1.0, 2.0}) {
            QFont pismo = widget.font();
            pismo.setPixelSize(static_cast<int>(13 * meritko + 0.5));
            widget.setFont(pismo);
            widget.resize(QSizeF(twips.width() / 15.0 * meritko, twips.height() / 15.0 * meritko).toSize());
            uloz(widget, QStringLiteral("%1-%2").arg(jmeno).arg(meritko));
        }
    }
    void uloz(QWidget& widget, const QString& jmeno) {
        widget.grab().save(QStringLiteral("%1/%2.png").arg(slozka_, jmeno));
    }

private:
    QString slozka_;
};

void naplnPas(Pas& pas) {
    const QStringList slabiky{"Koč-", "ka",  "le-",         "ze",   "dí-", "rou,", "pes", "ok-",
                              "nem,", "pes", "okuzlujícím", "nem,", "ne-", "bu-",  "de-", "li"};
    const QVector<QStringList> tony{{"c1,", "e1,", "g1,"},
                                    {"d1,"},
                                    {"e,"},
                                    {"f1,", "g1,", "a1,"},
                                    {"e4,", "c4,"},
                                    {"cis1,", "dis1,", "fis1,", "gis1,", "ais1,", "cis2,", "dis2,"},
                                    {"g1,", "h1,", "d2,"},
                                    {"b1,", "d2,"},
                                    {"as1,", "es1,"},
                                    {"a2,", "c3,"},
                                    {"gis2,"},
                                    {"c1,", "cis1,", "d1,"},
                                    {"c2,", "e2,", "g2,", "b2,"},
                                    {"h,"},
                                    {"fis1,", "a1,"},
                                    {"f2,"}};
    for (std::size_t i = 0; i < pas.pozice.size(); ++i) {
        const auto k = static_cast<qsizetype>(i);
        pas.pozice[i] = {slabiky[k], tony[k],
                         i == 8      ? SmerMechu::Neuveden
                         : i / 3 % 2 ? SmerMechu::Tlak
                                     : SmerMechu::Tah};
    }
    pas.viditelny = true;
    pas.poziceVPasu = 4;
    pas.prvniRadekPasu = 95;
    pas.oznamZmenu();
}

void vyfotZapis(Fotograf& fotograf) {
    TicheDialogy dialogy;
    NotovaOsnova osnova;
    clsNotyZapis zapis(osnova, dialogy);
    ZapisovaciOsnova widget(osnova, zapis);
    widget.resize(232, 153);
    fotograf.vyfot(widget, QStringLiteral("zapis-prazdny"), {3480, 2300});
    zapis.NastavStupnici(Key(QStringLiteral("Cis dur")));
    for (const int jednotky : {660, 780, 1800, 480})
        zapis.pridejNotu(jednotky);
    zapis.nastavZnamenko(1, Znamenko::Odrazka);
    zapis.nastavZnamenko(0, Znamenko::Becko);
    fotograf.vyfot(widget, QStringLiteral("zapis-cis"), {3480, 2300});
    zapis.NastavStupnici(Key(QStringLiteral("F dur")));
    const QPointF misto = widget.mista().slot(4).center();
    QMouseEvent pohyb(QEvent::MouseMove, misto, misto, Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &pohyb);
    fotograf.uloz(widget, QStringLiteral("zapis-duch"));
}

void vyfotOsnovu(Fotograf& fotograf) {
    ZobrazovaciOsnova osnova;
    ZobrazovaciOsnovaWidget widget(osnova);
    fotograf.vyfot(widget, QStringLiteral("osnova-prazdna"), {1640, 2150});
    osnova.ukaz({"c1,", "e1,", "g1,", "b1,", "c2,", "e2,", "rubbish"});
    fotograf.vyfot(widget, QStringLiteral("osnova-akord"), {1640, 2150});
    osnova.ukaz({"cis1,", "dis1,", "fis1,", "gis1,", "ais1,", "cis4,", "e,"});
    fotograf.vyfot(widget, QStringLiteral("osnova-sedm"), {1640, 2150});
    widget.nastavStupnici(Key(QStringLiteral("Ges dur")));
    fotograf.vyfot(widget, QStringLiteral("osnova-ges"), {1640, 2150});
}

/// Milliseconds that a full strip takes from changed contents to painted pixels.
void zmerPas(Pas& pas, PasWidget& pruh) {
    for (const double meritko : {0.87, 1.0, 2.0}) {
        QFont pismo = pruh.font();
        pismo.setPixelSize(static_cast<int>(13 * meritko + 0.5));
        pruh.setFont(pismo);
        pruh.resize(static_cast<int>(532 * meritko), static_cast<int>(195 * meritko));
        QImage platno(pruh.size(), QImage::Format_ARGB32_Premultiplied);
        constexpr int opakovani = 50;
        QElapsedTimer hodiny;
        hodiny.start();
        for (int i = 0; i < opakovani; ++i) {
            pas.oznamZmenu();
            pruh.render(&platno, {}, {}, {});
        }
        QTextStream(stdout) << "full strip, scale " << meritko << ": "
                            << double(hodiny.nsecsElapsed()) / 1e6 / opakovani << " ms\n";
    }
}

void vyfotPisen(Fotograf& fotograf) {
    Pas pas;
    PasWidget pruh(pas);
    naplnPas(pas);
    fotograf.vyfot(pruh, QStringLiteral("pas"), {7980, 2920});
    zmerPas(pas, pruh);

    SongPanel panel;
    PanelTextu texty(panel);
    panel.lblSlabika = {"ka", "le-", "dlouháslabika", "dí-", "rou,"};
    panel.lblTony = QStringLiteral("cis1, dis1, fis1, gis1, ais1, cis2, dis2,");
    panel.lblBasy = QStringLiteral("C cdur F");
    panel.lblStupnice = QStringLiteral("C dur");
    panel.popisyViditelne = true;
    panel.oznamZmenu();
    fotograf.vyfot(texty, QStringLiteral("panel"), {3700, 1900});
}

void vyfotStupnici(Fotograf& fotograf) {
    TicheDialogy dialogy;
    NotovaOsnova osnova;
    Tonina tonina;
    tonina.nastavStupnici(Key(QStringLiteral("Es dur")));
    VolbaStupnice volba(dialogy, tonina, osnova);
    FrmStupnice dialog(volba, tonina);
    dialog.show();
    fotograf.uloz(dialog, QStringLiteral("frmStupnice"));
}

} // namespace

int main(int argc, char** argv) {
    QApplication aplikace(argc, argv);
    QCommandLineParser zadano;
    zadano.setApplicationDescription("Draws every widget of notation with sample data, to be looked at.");
    zadano.addHelpOption();
    zadano.addPositionalArgument("folder", "Where the pictures go; made where it is missing.", "[FOLDER]");
    zadano.process(aplikace);
    const QString slozka = zadano.positionalArguments().value(0, QDir::tempPath());
    QDir().mkpath(slozka);
    Fotograf fotograf(slozka);
    vyfotZapis(fotograf);
    vyfotOsnovu(fotograf);
    vyfotPisen(fotograf);
    vyfotStupnici(fotograf);
    return 0;
}
