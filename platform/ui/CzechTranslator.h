#pragma once

#include <QTranslator>

namespace zvonika {

/// Czech texts for what the toolkit itself shows: the parts of its file dialog and the edit menus of its text
/// fields. Install it in the application object before the first window.
class CzechTranslator : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }
};

} // namespace zvonika
