#include "theory/clsNoty.h"

#include "theory/PolohaNoty.h"

namespace zvonika {

/// What a character after the letter says at its place.
enum class clsNoty::Znak { Konec, Oktava, Krizek, Becko, Dalsi, Neznamy };

namespace {

QChar znakNa(const QString& nazev, qsizetype misto) {
    return misto < nazev.size() ? nazev[misto] : QChar();
}

/// Negative for a letter that is no note; b shares the place of h.
int stupenPismene(QChar pismeno) {
    return pismeno == u'b' ? 6 : static_cast<int>(QStringView(u"cdefgah").indexOf(pismeno));
}

} // namespace

QString clsNoty::UrciPolohuNoty(const ToneName& nazev) const {
    const QChar pismeno = znakNa(nazev.text(), 0);
    const int stupen = stupenPismene(pismeno);
    if (stupen < 0) {
        dialogs_.message({{}, QStringLiteral("Neznámý tón !"), Icon::Critical});
        return {};
    }
    const Znak druhy = druhyZnak(znakNa(nazev.text(), 1));
    const auto oktava = prectiOktavu(nazev.text(), druhy);
    if (!oktava) return {};
    QString poloha;
    if (druhy == Znak::Krizek)
        poloha = QStringLiteral("k");
    else if (druhy == Znak::Becko || pismeno == u'b')
        poloha = QStringLiteral("b");
    return poloha +
           QString::number(*oktava * PolohaNoty::jednotekNaOktavu + stupen * PolohaNoty::jednotekNaStupen);
}

std::optional<int> clsNoty::prectiOktavu(const QString& nazev, Znak druhy) const {
    const auto oktava = [&](Znak znak, qsizetype misto) {
        return znak == Znak::Oktava ? znakNa(nazev, misto).digitValue() : 0;
    };
    const auto konci = [](Znak znak) { return znak == Znak::Konec || znak == Znak::Oktava; };

    if (konci(druhy)) return oktava(druhy, 1);
    if (druhy == Znak::Neznamy) ohlasNeocekavanou(QStringLiteral("druhý znak tónu"));
    const Znak treti = tretiZnak(znakNa(nazev, 2));
    if (konci(treti)) return oktava(treti, 2);
    if (treti == Znak::Neznamy) ohlasNeocekavanou(QStringLiteral("třetí znak tónu"));
    const Znak ctvrty = ctvrtyZnak(znakNa(nazev, 3));
    if (konci(ctvrty)) return oktava(ctvrty, 3);
    ohlasNeocekavanou(QStringLiteral("čtvrtý znak tónu"));
    return std::nullopt;
}

clsNoty::Znak clsNoty::druhyZnak(QChar znak) {
    if (znak == u',') return Znak::Konec;
    if (znak == u'i') return Znak::Krizek;
    if (znak == u'e' || znak == u's') return Znak::Becko;
    // Only here may the octave be written as 0.
    return znak >= u'0' && znak <= u'4' ? Znak::Oktava : Znak::Neznamy;
}

clsNoty::Znak clsNoty::tretiZnak(QChar znak) {
    return znak == u's' ? Znak::Dalsi : ctvrtyZnak(znak);
}

clsNoty::Znak clsNoty::ctvrtyZnak(QChar znak) {
    if (znak == u',') return Znak::Konec;
    return znak >= u'1' && znak <= u'4' ? Znak::Oktava : Znak::Neznamy;
}

void clsNoty::ohlasNeocekavanou(const QString& titulek) const {
    dialogs_.message({titulek, QStringLiteral("Neočekávaná hodnota !"), Icon::Critical});
}

} // namespace zvonika
