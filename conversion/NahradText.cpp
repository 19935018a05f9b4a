#include "conversion/NahradText.h"

namespace zvonika {

QString NahradText(QString text, const QString& hledany, const QString& nahrada, const VolbyNahrady& volby,
                   const std::function<void()>& poNahrade, int& provedeno) {
    provedeno = 0;
    qsizetype misto = text.indexOf(hledany, volby.start - 1, volby.porovnani);
    while (misto >= 0 && provedeno != volby.pocet) {
        text.replace(misto, hledany.size(), nahrada);
        ++provedeno;
        poNahrade();
        misto = text.indexOf(hledany, misto, volby.porovnani);
    }
    return text;
}

} // namespace zvonika
