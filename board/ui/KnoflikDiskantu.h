#pragma once

#include "board/ui/Napis.h"
#include "board/ui/StiskaciPrvek.h"

namespace zvonika {

class TrebleBoard;

/// A treble button, picture and caption in one: `lbl(n)` over its `imgDiskant`, or `lblSynchro(n)` over its
/// `imgDiskantPom`. The model must outlive it.
class KnoflikDiskantu : public StiskaciPrvek {
    Q_OBJECT
public:
    KnoflikDiskantu(int n, bool pomocny, const TrebleBoard& model, std::shared_ptr<ObrazyPrvku> obrazy,
                    QWidget* parent);

    /// Takes over picture, mark and caption from the model and repaints if they changed.
    void obnov();
    bool pomocny() const { return pomocny_; }
    const QString& popis() const { return napis_.text(); }

protected:
    void druhyStisk() override { Q_EMIT dvojklik(); }
    void paintEvent(QPaintEvent* event) override;

private:
    QRect mistoObrazu() const;
    QRectF mistoNapisu(const QRectF& obraz) const;

    bool pomocny_;
    const TrebleBoard& model_;
    Napis napis_;
};

} // namespace zvonika
