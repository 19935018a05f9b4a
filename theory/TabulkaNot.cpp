#include "theory/TabulkaNot.h"

#include "platform/XmlTable.h"

#include <algorithm>

namespace zvonika {

namespace {

const QString jmeno = QStringLiteral("Tabulka tónů konverze.xml");

/// The fewest entries that conversion and intervals together reach for: the heading and 57 tones.
constexpr int nejmenePolozek = 58;

bool jeMimoStupnici(const pugi::xml_node& polozka) {
    return !polozka.attribute("mimoStupnici").empty();
}

} // namespace

void TabulkaNot::nacti(const QString& slozkaProgramu) {
    const XmlTableFile soubor = readXmlTable(slozkaProgramu + QStringLiteral("/konverze.xml"), jmeno);
    if (!soubor.content.isEmpty() && soubor.content == obsah_) return;
    obsah_ = soubor.content;
    polozky_.clear();
    dokument_.reset();
    chyba_ = soubor.trouble.isEmpty() ? parseXmlTable(obsah_, jmeno, dokument_) : soubor.trouble;
    rozeber();
}

void TabulkaNot::rozeber() {
    for (const auto& nalez : dokument_.select_nodes("//nota"))
        polozky_.push_back(nalez.node());
    const auto prvniMimo = std::find_if(polozky_.cbegin(), polozky_.cend(), jeMimoStupnici);
    pocetStupnu_ = static_cast<int>(prvniMimo - polozky_.cbegin());
    if (chyba_.isEmpty() && pocet() < nejmenePolozek)
        chyba_ = jmeno + QStringLiteral(" není celá: položek nota má mít nejméně %1, má jich %2.")
                             .arg(nejmenePolozek)
                             .arg(pocet());
}

std::optional<QString> TabulkaNot::ton(int polozka, const QString& stupnice) const {
    if (polozka < 0 || polozka >= pocet()) return std::nullopt;
    const auto prvek = polozky_[static_cast<std::size_t>(polozka)].child(stupnice.toUtf8().constData());
    if (!prvek) return std::nullopt;
    return QString::fromUtf8(prvek.text().get());
}

} // namespace zvonika
