#include "spreadsheet/libreoffice/uno/Interaction.h"

#include "spreadsheet/FileRefusals.h"

#include <com/sun/star/document/BrokenPackageRequest.hpp>
#include <com/sun/star/document/LockedDocumentRequest.hpp>
#include <com/sun/star/document/OwnLockOnDocumentRequest.hpp>
#include <com/sun/star/task/DocumentMSPasswordRequest.hpp>
#include <com/sun/star/task/DocumentPasswordRequest.hpp>
#include <com/sun/star/task/XInteractionAbort.hpp>

namespace zvonika {

namespace {

template <typename Request>
bool isA(const css::uno::Any& question) {
    Request request;
    return question >>= request;
}

QString reasonOf(const css::uno::Any& question) {
    if (isA<css::document::LockedDocumentRequest>(question) ||
        isA<css::document::OwnLockOnDocumentRequest>(question))
        return QStringLiteral("je už otevřen jinde");
    if (isA<css::task::DocumentPasswordRequest>(question) ||
        isA<css::task::DocumentMSPasswordRequest>(question))
        return QStringLiteral("je chráněn heslem");
    if (isA<css::document::BrokenPackageRequest>(question)) return QString::fromUtf16(reason::damaged);
    return {};
}

} // namespace

void Interaction::handle(const Ref<css::task::XInteractionRequest>& request) {
    if (const QString reason = reasonOf(request->getRequest()); !reason.isEmpty()) reason_ = reason;
    const auto continuations = request->getContinuations();
    for (const auto& continuation : continuations)
        if (const auto abort = as<css::task::XInteractionAbort>(continuation); abort.is())
            return abort->select();
}

} // namespace zvonika
