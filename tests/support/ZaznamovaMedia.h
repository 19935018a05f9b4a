#pragma once

#include "platform/Media.h"

#include <QStringList>

namespace zvonika::testing {

/// Remembers the command strings and answers with the codes that were set, 0 otherwise.
class ZaznamovaMedia : public Media {
public:
    int sendString(const QString& command) override {
        prikazy << command;
        return kody.isEmpty() ? 0 : kody.takeFirst();
    }

    QStringList prikazy;
    QList<int> kody;
};

} // namespace zvonika::testing
