#pragma once

#include "aids/PovoleneAdresy.h"

#include <QWebEngineUrlRequestInterceptor>

namespace zvonika {

/// Lets a page have the files of the manual's folder, to be shown and for nothing else. The engine's own
/// switch for that (`LocalContentCanAccessFileUrls`) would take the pictures with it.
class HlidkaPozadavku : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT
public:
    HlidkaPozadavku(const PovoleneAdresy& povolene, QObject* rodic)
        : QWebEngineUrlRequestInterceptor(rodic), povolene_(povolene) {}

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

private:
    const PovoleneAdresy& povolene_;
};

} // namespace zvonika
