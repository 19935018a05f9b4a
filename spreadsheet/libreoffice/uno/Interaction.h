#pragma once

#include "spreadsheet/libreoffice/uno/Uno.h"

#include <com/sun/star/task/XInteractionHandler.hpp>
#include <cppuhelper/implbase1.hxx>

namespace zvonika {

/// Answers every question that opening or saving raises with "abort", so that no box stands in Calc while the
/// program waits; what was asked tells the reason. That another program has changed the file is no reason:
/// the program has asked about it before.
class Interaction : public cppu::WeakImplHelper1<css::task::XInteractionHandler> {
public:
    void SAL_CALL handle(const Ref<css::task::XInteractionRequest>& request) override;

    /// A Czech clause for the last question ("je otevřen jinde"), or "".
    const QString& reason() const { return reason_; }

private:
    QString reason_;
};

} // namespace zvonika
