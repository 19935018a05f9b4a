#pragma once

#include <QLoggingCategory>

namespace zvonika {

// A log for support, on the standard error output: what was opened, saved and recovered, by path, and how it
// went; never what a song holds. Off unless ZVONIKA_LOG is set to a number other than 0 when the program
// starts, or QT_LOGGING_RULES switches a category on ("zvonika.*=true"), which also counts against
// ZVONIKA_LOG.
//
//     qCInfo(savingLog).noquote() << path << "uložen";

/// What a log of the program begins with, by ZVONIKA_LOG; not by filter rules, which anybody may set anew.
inline QtMsgType logFrom() {
    return qEnvironmentVariableIntValue("ZVONIKA_LOG") != 0 ? QtInfoMsg : QtWarningMsg;
}

inline const QLoggingCategory& openingLog() {
    static const QLoggingCategory category("zvonika.otevirani", logFrom());
    return category;
}

inline const QLoggingCategory& savingLog() {
    static const QLoggingCategory category("zvonika.ukladani", logFrom());
    return category;
}

inline const QLoggingCategory& recoveryLog() {
    static const QLoggingCategory category("zvonika.obnova", logFrom());
    return category;
}

/// Calls of a spreadsheet in another process.
inline const QLoggingCategory& callsLog() {
    static const QLoggingCategory category("zvonika.volani", logFrom());
    return category;
}

} // namespace zvonika
