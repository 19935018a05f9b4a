#include "ukazka/Pisnicka.h"

#include <QStringList>

namespace zvonika {

namespace {

/// What a player does for one tone of the melody.
struct TonMelodie {
    QChar ton;
    int knoflik, bas, prst;
};

constexpr int basF = 29, basC = 30, basG = 31; // fundamental basses

const TonMelodie& tonMelodie(QChar ton) {
    static const TonMelodie tabulka[] = {{'c', 9, basC, 2},  {'d', 11, basG, 3}, {'e', 13, basC, 4},
                                         {'f', 14, basF, 3}, {'g', 16, basC, 4}, {'a', 18, basF, 5}};
    for (const TonMelodie& radek : tabulka)
        if (radek.ton == ton) return radek;
    return tabulka[0];
}

struct Fraze {
    const char* tony;
    QStringList slabiky;
};

} // namespace

QVector<HmatUkazky> kockaLezeDirou() {
    const QVector<Fraze> fraze = {
        {"cdefgg", {"Koč-", "ka", "le-", "ze", "dí-", "rou,"}},
        {"aag", {"pes", "ok-", "nem,"}},
        {"aag", {"pes", "ok-", "nem,"}},
        {"ffffee", {"ne-", "bu-", "de-", "li", "pr-", "šet,"}},
        {"ddg", {"ne-", "zmok-", "nem,"}},
        {"ffffee", {"ne-", "bu-", "de-", "li", "pr-", "šet,"}},
        {"ddc", {"ne-", "zmok-", "nem."}},
    };
    QVector<HmatUkazky> hmaty;
    bool tlak = true;
    for (const Fraze& radek : fraze) {
        for (qsizetype i = 0; i < radek.slabiky.size(); ++i) {
            const TonMelodie& ton = tonMelodie(QLatin1Char(radek.tony[i]));
            hmaty.push_back(
                {radek.slabiky[i], ton.knoflik, ton.bas, ton.prst, tlak, ton.ton + QStringLiteral("1,")});
        }
        tlak = !tlak;
    }
    return hmaty;
}

} // namespace zvonika
