#include "app/Prikazy.h"

namespace zvonika {

using Druh = DruhTlacitka;

const QVector<TlacitkoPrikazu>& tlacitkaPrikazu() {
    static const QVector<TlacitkoPrikazu> tabulka = {
        // the song
        {"cmdNovaSkladba", "Nová píseň", "", {60, 60, 1150, 400}, Druh::Hlavni, "Ctrl+N"},
        {"cmdEdit", "Otevřít", "", {1240, 60, 950, 400}, Druh::Hlavni, "Ctrl+O"},
        {"cmdEndEdit", "Konec písničky", "", {2220, 60, 1560, 400}, Druh::Hlavni, "Ctrl+E"},
        // its key
        {"cmdStupnice",
         "Vyberte tóninu",
         "Zapsaná stupnice: volba tóniny",
         {14080, 5870, 1860, 390},
         Druh::Bezne,
         "Ctrl+T"},
        // recording
        {"cmdTahNoty", "< Tah", "ZAPÍŠE noty z osnovy na tah", {14330, 5350, 780, 430}, Druh::Tah, "Ctrl+F7"},
        {"cmdTlakNoty",
         "> Tlak",
         "ZAPÍŠE noty z osnovy na tlak",
         {15150, 5350, 790, 430},
         Druh::Tlak,
         "Ctrl+F8"},
        {"cmdTah", "< Tah", "ZAPÍŠE označený hmat na tah", {12060, 6350, 1920, 600}, Druh::Tah, "F7"},
        {"cmdTlak", "> Tlak", "ZAPÍŠE označený hmat na tlak", {14020, 6350, 1920, 600}, Druh::Tlak, "F8"},
        // moving through the song
        {"cmdPrvni", "První", "První hmat", {12060, 7060, 940, 390}, Druh::Bezne, "Ctrl+Home"},
        {"cmdPredchozi", "Předchozí", "Předchozí hmat", {13040, 7060, 940, 390}, Druh::Bezne, "Ctrl+Up"},
        {"cmdDalsi", "Další", "Další hmat", {14020, 7060, 940, 390}, Druh::Bezne, "Ctrl+Down"},
        {"cmdPosledni", "Poslední", "Poslední hmat", {15000, 7060, 940, 390}, Druh::Bezne, "Ctrl+End"},
        {"cmdPredTah", "Před- chozí tah", "Předchozí hmat na tah", {12060, 7490, 940, 560}, Druh::Tah},
        {"cmdPredTlak", "Před- chozí tlak", "Předchozí hmat na tlak", {13040, 7490, 940, 560}, Druh::Tlak},
        {"cmdDalsiTah", "Další tah", "Další hmat na tah", {14020, 7490, 940, 560}, Druh::Tah},
        {"cmdDalsiTlak", "Další tlak", "Další hmat na tlak", {15000, 7490, 940, 560}, Druh::Tlak},
        {"cmdReadTah", "Tah", "Ukázat hmat na tah", {12060, 8090, 940, 390}, Druh::Tah, "Ctrl+Left"},
        {"cmdReadTlak", "Tlak", "Ukázat hmat na tlak", {13040, 8090, 940, 390}, Druh::Tlak, "Ctrl+Right"},
        {"cmdJakDalZpet", "Zpět", "Zpět o hmat podle měchu (PageUp)", {12060, 8540, 1260, 700}},
        {"cmdJakDal", "", "Dál o hmat podle měchu (PageDown)", {13360, 8540, 2580, 700}},
        {"cmdTimer", "Automat", "Automatické krokování", {12060, 9330, 1260, 420}, Druh::Bezne, "F9"},
        {"cmdZvuk(0)", "", "Přehrát mp3", {12060, 9940, 1260, 390}},
        {"cmdZvuk(1)", "Midi", "Přehrát Midi", {13370, 9940, 1260, 390}},
        {"cmdZvuk(2)", "Wav", "Přehrát Wav", {14680, 9940, 1260, 390}},
        // releasing
        {"cmdUvolDiskant", "Uvolnit diskant", "", {7680, 5290, 1500, 360}},
        {"cmdUvolBasy", "Uvolnit basy", "", {7680, 5670, 1500, 360}},
        {"cmdUvolNoty", "Uvolnit noty", "", {7680, 6050, 1500, 360}},
        {"cmdUvolniPultony", "b", "Uvolnit půltóny", {7680, 6430, 380, 440}},
        {"cmdUvolOdrazky", "Uvolnit odrážky", "", {8090, 6430, 1090, 440}},
        {"cmdUvolKnofl", "Uvolnit vše", "", {7680, 6900, 1500, 410}, Druh::Hlavni, "F4"},
        // intervals, under the choice of their size
        {"cmdInterval",
         "Vrchní interval",
         "Interval nad zvoleným tónem",
         {7680, 8040, 1500, 380},
         Druh::Bezne,
         "F3"},
        {"cmdSpodInterval",
         "Spodní interval",
         "Interval pod zvoleným tónem",
         {7680, 8450, 1500, 380},
         Druh::Bezne,
         "Shift+F3"},
        {"cmdIntervalOdNejnizsiho",
         "Od nejnižšího tónu",
         "Interval od nejnižšího tónu zapsaného hmatu",
         {7680, 8860, 1500, 600},
         Druh::Bezne,
         "Ctrl+F3"},
        {"cmdOPrg", "O programu", "", {7680, 9940, 1500, 390}},
    };
    return tabulka;
}

const QVector<Menu>& menuPrikazu() {
    static const QVector<Menu> tabulka = {
        {"Soubor",
         {{"mnuNovaPisen", "Nová píseň", "cmdNovaSkladba"},
          {"mnuOtevrit", "Otevřít", "cmdEdit"},
          {"mnuKonecPisne", "Konec písničky", "cmdEndEdit"},
          {},
          {"mnuNastavCestu", "Změna implicitní cesty pro Excel", "mnuNastavCestu"},
          {},
          {"mnuKonec", "Konec", "mnuKonec", false, "Ctrl+Q"}}},
        {"Úpravy",
         {{"mnuKonverze", "Konverze", "mnuKonverze"},
          {},
          {"mnuUvolnitDiskant", "Uvolnit diskant", "cmdUvolDiskant"},
          {"mnuUvolnitBasy", "Uvolnit basy", "cmdUvolBasy"},
          {"mnuUvolnitNoty", "Uvolnit noty", "cmdUvolNoty"},
          {"mnuUvolnitPultony", "Uvolnit půltóny", "cmdUvolniPultony"},
          {"mnuUvolnitOdrazky", "Uvolnit odrážky", "cmdUvolOdrazky"},
          {"mnuUvolnitVse", "Uvolnit vše", "cmdUvolKnofl"}}},
        {"Nastavení",
         {{"mnuPrekrytRady", "Překrýt řady", "mnuPrekrytRady"},
          {"mnuOtocitHmatnik", "Otočit hmatník", "mnuOtocitHmatnik"},
          {},
          {"mnu2Rady", "Názvy na knoflíkách", "mnu2Rady", true},
          {"mnuCislovat", "Pomocné číslování", "mnuCislovat", true}}},
        {"Pošta", {{"mnuMailAutorovi", "Poslat zprávu autorovi", "mnuMailAutorovi"}}},
        {"Nápověda",
         {{"mnuhtm", "Ovládání Tamíka", "mnuhtm", false, "F1"}, {"mnuOProgramu", "O programu", "cmdOPrg"}}},
        {"Doplňky",
         {{"mnuTabulka", "Tabulkový program", "mnuTabulka"},
          {},
          {"mnuZpet", "Zpět", "mnuZpet", false, "Ctrl+Z"},
          {"mnuZnovu", "Znovu", "mnuZnovu", false, "Ctrl+Y; Ctrl+Shift+Z"},
          {},
          {"mnuPrevzitHmat", "Převzít ukázaný hmat", "mnuPrevzitHmat", false, "F5"},
          {"mnuVzitPrst", "Vzít zpět čekající prst", "mnuVzitPrst", false, "Shift+F2"},
          {},
          {"mnuVlozitHmat", "Vložit hmat", "mnuVlozitHmat", false, "Ctrl+Ins"},
          {"mnuSmazatHmat", "Smazat hmat", "mnuSmazatHmat", false, "Ctrl+Del"}}},
    };
    return tabulka;
}

} // namespace zvonika
