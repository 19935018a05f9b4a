#pragma once

#include <QStringList>
#include <QTranslator>

namespace zvonika {

/// Czech texts for what the toolkit itself shows, as the parts of its file dialog and the edit menus of its
/// text fields: those of its own catalogue, and words of ours where the program says the same thing
/// otherwise. Names of keys stay as they stand on the keyboard. Install it in the application object before
/// the first window.
class CzechTranslator : public QTranslator {
    Q_OBJECT

public:
    /// `folders`: native, the first one that holds the catalogue "qtbase_cs.qm" counts. Where none does, the
    /// toolkit speaks English but for our words, and the log says so.
    explicit CzechTranslator(const QStringList& folders);

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }
};

} // namespace zvonika
