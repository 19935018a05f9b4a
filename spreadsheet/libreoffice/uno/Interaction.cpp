#include "spreadsheet/libreoffice/uno/Interaction.h"

#include "spreadsheet/FileRefusals.h"

#include <com/sun/star/document/BrokenPackageRequest.hpp>
#include <com/sun/star/document/ChangedByOthersRequest.hpp>
#include <com/sun/star/document/LockedDocumentRequest.hpp>
#include <com/sun/star/document/OwnLockOnDocumentRequest.hpp>
#include <com/sun/star/task/DocumentMSPasswordRequest.hpp>
#include <com/sun/star/task/DocumentPasswordRequest.hpp>
#include <com/sun/star/task/XInteractionAbort.hpp>
#include <com/sun/star/task/XInteractionApprove.hpp>

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

/// Gives the answer of that kind, if there is one.
template <typename Continuation>
void answer(const Ref<css::task::XInteractionRequest>& request) {
    const auto continuations = request->getContinuations();
    for (const auto& each : continuations)
        if (const auto continuation = as<Continuation>(each); continuation.is())
            return continuation->select();
}

} // namespace

void Interaction::handle(const Ref<css::task::XInteractionRequest>& request) {
    const css::uno::Any question = request->getRequest();
    if (isA<css::document::ChangedByOthersRequest>(question))
        return answer<css::task::XInteractionApprove>(request);
    if (const QString reason = reasonOf(question); !reason.isEmpty()) reason_ = reason;
    answer<css::task::XInteractionAbort>(request);
}

} // namespace zvonika
