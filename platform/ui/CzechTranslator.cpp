#include "platform/ui/CzechTranslator.h"

#include <QHash>

#include <algorithm>

namespace zvonika {

namespace {

// The program's own boxes and windows have Storno, složka and Vpřed; "Změněno" fits its narrow column.
const QHash<QByteArray, QString>& ourWords() {
    static const QHash<QByteArray, QString> words{
        {"Cancel", QStringLiteral("Storno")},
        {"Forward", QStringLiteral("Vpřed")},
        {"Go forward", QStringLiteral("Jít vpřed")},
        {"Date Modified", QStringLiteral("Změněno")},
        {"File Folder", QStringLiteral("Složka se soubory")},
        {"Parent Directory", QStringLiteral("Nadřazená složka")},
        {"Go to the parent directory", QStringLiteral("Přejít do nadřazené složky")},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         QStringLiteral("%1\nSložka nebyla nalezena.\nZkontrolujte prosím její název.")},
        {"Are you sure you want to delete '%1'?", QStringLiteral("Opravdu chcete smazat „%1“ ?")},
        {"Could not delete directory.", QStringLiteral("Složku nelze smazat.")},
    };
    return words;
}

bool namesKeys(const char* context) {
    return qstrcmp(context, "QShortcut") == 0;
}

} // namespace

CzechTranslator::CzechTranslator(const QStringList& folders) {
    const bool loaded = std::any_of(folders.begin(), folders.end(), [this](const QString& folder) {
        return load(QStringLiteral("qtbase_cs"), folder);
    });
    if (!loaded) qWarning("qtbase_cs.qm was not found: what the toolkit itself shows is in English");
}

QString CzechTranslator::translate(const char* context, const char* sourceText, const char* disambiguation,
                                   int n) const {
    if (!context || context[0] != 'Q' || namesKeys(context)) return {};
    const auto ours = ourWords().constFind(QByteArray(sourceText));
    if (ours != ourWords().constEnd()) return *ours;
    return QTranslator::translate(context, sourceText, disambiguation, n);
}

} // namespace zvonika
