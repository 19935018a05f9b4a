#pragma once

#include <QElapsedTimer>

namespace zvonika {

/// Mouse pointer of a wait that is long enough to be noticed.
class UkazatelCekani {
public:
    UkazatelCekani() = default;
    ~UkazatelCekani() { konec(); }
    UkazatelCekani(const UkazatelCekani&) = delete;
    UkazatelCekani& operator=(const UkazatelCekani&) = delete;

    void ceka(); ///< the wait goes on
    void konec();

private:
    QElapsedTimer cekani_;
    bool ukazan_ = false;
};

} // namespace zvonika
