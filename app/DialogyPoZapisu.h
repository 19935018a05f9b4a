#pragma once

#include "platform/Dialogs.h"

#include <functional>

namespace zvonika {

/// Boxes before which the song's sheet gets what was written into it: who is asked something sees what he is
/// asked about.
class DialogyPoZapisu : public Dialogs {
public:
    /// `dialogs` outlives this.
    explicit DialogyPoZapisu(Dialogs& dialogs) : dialogs_(dialogs) {}

    /// Comes before each box; may throw RuntimeError, which then comes out of the box unless a failure is
    /// just being reported.
    std::function<void()> dopis;

    Answer message(const Message& message) override;
    QString input(const QString& title, const QString& prompt) override;
    std::optional<QString> openFile(const QString& title, const QString& filter,
                                    const QString& folder) override;
    std::optional<QString> saveFile(const QString& title, const QString& filter,
                                    const QString& suggested) override;

private:
    Dialogs& poZapisu();

    Dialogs& dialogs_;
};

} // namespace zvonika
