#pragma once

#include "platform/Shell.h"

#include <QStringList>

namespace zvonika::testing {

/// A desktop that only remembers what it was asked for.
class ZaznamovyShell : public Shell {
public:
    bool open(const QString& link) override {
        odkazy << link;
        return true;
    }
    void endProcess(int) override { ukonceno = true; }

    QStringList odkazy;
    bool ukonceno = false;
};

} // namespace zvonika::testing
