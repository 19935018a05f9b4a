#pragma once

#include <QString>

namespace zvonika {

/// The maker's contact line that ends many messages.
inline const QString kontakt = QStringLiteral("Zvonika, podpora@zvonika.example");
/// The author's mail address.
inline const QString adresaAutora = QStringLiteral("autor@zvonika.example");

} // namespace zvonika
