#include "app/OProgramu.h"

#include "platform/Contact.h"

#include <QStringList>

namespace zvonika {

void cmdOPrg(Dialogs& dialogs) {
    const QStringList radky = {
        "Zvonika verze 2.2 je výukový program pro hráče na chromatický knoflíkový akordeon.",
        "Umožňuje zaznamenávat skladby podle notového záznamu, nebo přímo",
        "pouhým opsáním způsobu hry grafickým znázorněním do počítače.",
        "Při čtení skladby zobrazuje aktuální noty a knoflíky, které se právě mají stisknout.",
        "Lze určovat i prstoklad a také překrývat řady, které nemají být použity.",
        "Navíc lze hotové písničky převádět do různých ladění. Formát záznamu je kompatibilní",
        "s formátem používaným programem Tamík a tak lze uplatnit zaznamenané skladby i pro výuku na "
        "heligonky.",
        kontakt,
        adresaAutora,
    };
    dialogs.message(
        {QStringLiteral("Program Zvonika verze 2.2"), radky.join(QLatin1Char('\n')), Icon::Information});
}

bool mnuMailAutorovi(Dialogs& dialogs, Shell& shell) {
    dialogs.message(
        {QStringLiteral("Děkuji za Váš příspěvek."),
         QStringLiteral(
             "Bude spuštěn Váš výchozí poštovní klient. Minimalizujte Tamíka na lištu a potom můžete "
             "přiložit "
             "nějaké písničky nebo napsat jinou zprávu. Program po stisku tlačítka Odeslat nevyžaduje "
             "okamžité připojení k internetu. Zpráva se odešle automaticky až se připojíte kdykoliv později. "
             "Vaše písničky jsou na disku C v adresáři Dokumenty/Heligonka."),
         Icon::Information});
    return shell.open(QStringLiteral("\"mailto:%1?subject=Z Drafudo verze 2.1&body=Dobrý den & attach = ")
                          .arg(adresaAutora));
}

bool mnuKonec(Dialogs& dialogs) {
    return dialogs.message({QStringLiteral("Konec programu !"),
                            QStringLiteral("Opravdu chcete ukončit program ?"), Icon::None,
                            Buttons::YesNo}) == Answer::Yes;
}

} // namespace zvonika
