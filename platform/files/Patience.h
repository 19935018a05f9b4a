#pragma once

#include <functional>

namespace zvonika {

/// Asks the system again for as long as somebody else has a look at the file: two seconds of pauses at most.
class Patience {
public:
    static constexpr int longest = 2000; ///< ms, all pauses together

    Patience(); ///< sleeps
    explicit Patience(std::function<void(int milliseconds)> pause) : pause_(std::move(pause)) {}

    /// `step` gives an error number of Windows, 0 when it is done. The last one, see `isPassing`.
    unsigned long ask(const std::function<unsigned long()>& step) const;

private:
    std::function<void(int)> pause_;
};

} // namespace zvonika
