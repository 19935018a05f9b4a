#include "song/PopisSloupcu.h"

#include "song/SloupceRadku.h"

namespace zvonika {

namespace {

struct Popis {
    Sloupce kde;
    const char* slovo;
    const char* veta;
    int sirka; ///< px
};

constexpr Sloupce jeden(int sloupec) {
    return {sloupec, sloupec};
}

constexpr const char* volny = "Volný sloupec pro vlastní poznámky.";

constexpr Popis popisy[] = {
    {jeden(sloupce::slabika), "slabika", "Slabika textu, která se na tento hmat zpívá. Píše se přímo sem.",
     110},
    {sloupce::tony, "tón", "Tóny pravé ruky, nejvýše sedm; každý v jedné buňce.", 52},
    {jeden(sloupce::smer), "měch", "Směr měchu: Tah, nebo Tlak.", 52},
    {{sloupce::smer + 1, sloupce::basy.prvni - 1}, "", volny, 24},
    {sloupce::basy, "bas", "Basy levé ruky, nejvýše sedm; každý v jedné buňce.", 48},
    {jeden(sloupce::zaBasy), "", "Maže se spolu s basy.", 24},
    {{sloupce::zaBasy + 1, sloupce::prstoklad - 1}, "", volny, 24},
    {jeden(sloupce::prstoklad), "prstoklad", "Prstoklad hmatu.", 90},
    {jeden(sloupce::tonina), "tónina", "Tónina, ve které je hmat zapsán.", 80},
};

} // namespace

SheetColumns popisSloupcu() {
    SheetColumns sloupce;
    for (const Popis& popis : popisy)
        for (int i = 0; i < popis.kde.pocet(); ++i)
            sloupce.append({QString::fromUtf8(popis.slovo), QString::fromUtf8(popis.veta), popis.sirka});
    return sloupce;
}

} // namespace zvonika
