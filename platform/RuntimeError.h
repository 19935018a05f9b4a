#pragma once

#include <QString>

#include <stdexcept>

namespace zvonika {

/// A failure with the number that event procedures test and report.
class RuntimeError : public std::runtime_error {
public:
    /// `cause`: one plain Czech sentence for the user, or empty.
    explicit RuntimeError(int number, const QString& cause = {})
        : std::runtime_error("runtime error " + std::to_string(number)), number_(number), cause_(cause) {}

    int number() const noexcept { return number_; }
    const QString& cause() const noexcept { return cause_; }

private:
    int number_;
    QString cause_;
};

namespace error {
constexpr int overflow = 6;              ///< a number does not fit its variable
constexpr int subscriptOutOfRange = 9;   ///< no window, sheet or element of that name
constexpr int typeMismatch = 13;         ///< a text is no number
constexpr int permissionDenied = 70;     ///< a file cannot be deleted
constexpr int objectNotSet = 91;         ///< the application, or what it was asked about, is gone
constexpr int cannotCreateObject = 429;  ///< the application cannot be started
constexpr int applicationDefined = 1004; ///< the spreadsheet application refused
} // namespace error

} // namespace zvonika
