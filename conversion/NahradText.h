#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace zvonika {

/// How a text is searched for, and how far.
struct VolbyNahrady {
    Qt::CaseSensitivity porovnani = Qt::CaseSensitive;
    int start = 1;                 ///< character where the search begins, from 1
    std::optional<int> pocet = {}; ///< replacements at most; nothing: as long as there is a find
};

/// Replaces `hledany` by `nahrada`. After a replacement the search goes on from the place of the find, not
/// from behind what was put there: without `pocet` a replacement that contains the searched text never ends.
/// `poNahrade` is called after each replacement. `provedeno`: number of replacements.
QString NahradText(QString text, const QString& hledany, const QString& nahrada, const VolbyNahrady& volby,
                   const std::function<void()>& poNahrade, int& provedeno);

} // namespace zvonika
