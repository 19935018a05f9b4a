#include "aids/ZmenaCesty.h"

#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "song/SongSheet.h"

namespace zvonika {

namespace {

constexpr int volbaPuvodniCesta = 3;
// No drive X: and no such name: the marker must never be taken for a folder.
const QString resetovano = QStringLiteral("X:\\Nastavení bylo resetováno !!");

} // namespace

ZmenaCesty::ZmenaCesty(Pisen& pisen, const Drive& drive, Dialogs& dialogs)
    : pisen_(pisen), drive_(drive), dialogs_(dialogs) {}

const QString& ZmenaCesty::lblStaraCesta() const {
    return pisen_.puvodniCestaExcelu;
}

bool ZmenaCesty::OKButton(std::optional<int> vybrana, const QString& txtCesta) {
    if (!vybrana) {
        dialogs_.message({QStringLiteral("Chyba, nic nezadáno."),
                          QStringLiteral("Cesta nenastavena, nesprávné zadání."), Icon::Critical});
        return false;
    }
    if (*vybrana == volbaPuvodniCesta) {
        obnovPuvodni();
        return true;
    }
    return nastav(*vybrana == volbaJinaCesta ? txtCesta
                                             : textyCesty::Option1.at(static_cast<std::size_t>(*vybrana)));
}

void ZmenaCesty::obnovPuvodni() {
    pisen_.puvodniCestaExcelu = resetovano;
    dialogs_.message(
        {QStringLiteral("Reset nastavení"),
         QStringLiteral("Po ukončení Tamíka můžete zkontrolovat, zda volba splnila Vaše očekávání."),
         Icon::Information});
}

bool ZmenaCesty::nastav(const QString& slozka) {
    if (slozka.isEmpty()) return true;
    if (!drive_.folderExists(slozka)) {
        dialogs_.message({QStringLiteral("Neexistující složka"),
                          QStringLiteral("Požadovanou změnu nebylo možno provést."), Icon::Critical});
        return false;
    }
    pisen_.puvodniCestaExcelu = slozka;
    dialogs_.message({QStringLiteral("Změna konfigurace Excelu z Tamíka."),
                      QStringLiteral("Jako výchozí pro aplikaci Excel byla nastavena cesta do ") + slozka,
                      Icon::Information});
    return true;
}

} // namespace zvonika
