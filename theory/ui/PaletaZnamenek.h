#pragma once

#include "theory/PolohaNoty.h"

#include <QToolButton>

class QButtonGroup;

namespace zvonika {

/// One choice of the palette: a button that shows a note head or a sign.
class TlacitkoZnacky : public QToolButton {
public:
    TlacitkoZnacky(Znamenko znamenko, const QString& jmeno, const QString& popis, QWidget* parent);

    /// Zadne: the plain note.
    Znamenko znamenko() const { return znamenko_; }
    QSize sizeHint() const override { return {22, 30}; }
    QSize minimumSizeHint() const override { return {8, 10}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Znamenko znamenko_;
};

/// The palette of the entry staff: `picNota`, `picKrizek`, `picBecko`, `picOdrazka`. Exactly one is chosen.
class PaletaZnamenek : public QWidget {
    Q_OBJECT
public:
    explicit PaletaZnamenek(QWidget* parent = nullptr);

    /// What a click on the staff does: Zadne puts notes, the others put themselves in front of a note.
    Znamenko zvolene() const;

Q_SIGNALS:
    void zmeneno();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QButtonGroup* skupina_;
};

} // namespace zvonika
