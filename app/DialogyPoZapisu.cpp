#include "app/DialogyPoZapisu.h"

#include "platform/RuntimeError.h"

#include <exception>

namespace zvonika {

Dialogs& DialogyPoZapisu::poZapisu() {
    const bool hlasiChybu = std::current_exception() != nullptr;
    try {
        if (dopis) dopis();
    } catch (const RuntimeError&) {
        if (!hlasiChybu) throw;
    }
    return dialogs_;
}

Answer DialogyPoZapisu::message(const Message& message) {
    return poZapisu().message(message);
}

QString DialogyPoZapisu::input(const QString& title, const QString& prompt) {
    return poZapisu().input(title, prompt);
}

std::optional<QString> DialogyPoZapisu::openFile(const QString& title, const QString& filter,
                                                 const QString& folder) {
    return poZapisu().openFile(title, filter, folder);
}

std::optional<QString> DialogyPoZapisu::saveFile(const QString& title, const QString& filter,
                                                 const QString& suggested) {
    return poZapisu().saveFile(title, filter, suggested);
}

} // namespace zvonika
