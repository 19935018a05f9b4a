#include "platform/ui/PrvkyDialogu.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace zvonika {

QLabel* napis(const QString& jmeno, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(jmeno);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* tlacitko(const QString& jmeno, const QString& text) {
    auto* tlacitko = new QPushButton(text);
    tlacitko->setObjectName(jmeno);
    tlacitko->setAutoDefault(false);
    return tlacitko;
}

void pripravDialog(QDialog& dialog, const QString& jmeno, const QString& titulek, const QWidget* parent) {
    dialog.setObjectName(jmeno);
    dialog.setWindowTitle(titulek);
    dialog.setModal(true);
    if (parent && parent->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint, true);
}

int sirkaTitulku(const QDialog& dialog) {
    constexpr int tlacitkaOkna = 130;
    return dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + tlacitkaOkna;
}

} // namespace zvonika
