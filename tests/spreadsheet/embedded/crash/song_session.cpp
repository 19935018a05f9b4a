// One run of the built-in spreadsheet on one song, for tests that cut it off, let the disk fail under it or
// run several at a time.
//
//     song_session JOURNALS SONG yes|no STEP...
//
// Each step is done in turn. Its line on the standard output comes when it is done, in a single write:
//     ack <number> <all cells>      or      refused <number> <error> <sentence>
// Boxes are answered by "yes" or "no" and told of on a line of their own: asked <text>.
#include "platform/HomeDrive.h"
#include "platform/SettingsStore.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"

#include <QCoreApplication>

#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <unistd.h>

namespace zvonika {

namespace {

class NoSettings : public SettingsStore {
public:
    std::optional<QString> get(const QString&, const QString&) const override { return {}; }
    void save(const QString&, const QString&, const QString&) override {}
};

void tell(const QString& line) {
    const QByteArray bytes = QString(line).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8() + '\n';
    if (::write(STDOUT_FILENO, bytes.constData(), size_t(bytes.size())) != bytes.size()) ::_exit(3);
}

class OneAnswer : public Dialogs {
public:
    explicit OneAnswer(bool yes) : yes_(yes) {}
    Answer message(const Message& message) override {
        tell(QStringLiteral("asked ") + message.text);
        if (message.buttons == Buttons::Ok) return Answer::Ok;
        return yes_ ? Answer::Yes : Answer::No;
    }
    QString input(const QString&, const QString&) override { return {}; }
    std::optional<QString> openFile(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> saveFile(const QString&, const QString&, const QString&) override { return {}; }

private:
    bool yes_;
};

class SongSession {
public:
    SongSession(const QString& journals, const QString& song, bool yes)
        : song_(song), dialogs_(yes), app_(drive_, dialogs_, settings_, JournalFolder(journals)) {}

    void perform(int number, const QString& step) {
        try {
            perform(step.split(QLatin1Char(':')));
            QCoreApplication::processEvents(); // as between two commands
            tell(QStringLiteral("ack %1 %2").arg(number).arg(cells()));
        } catch (const RuntimeError& refusal) {
            tell(QStringLiteral("refused %1 %2 %3").arg(number).arg(refusal.number()).arg(refusal.cause()));
        }
    }

private:
    void perform(const QStringList& words) {
        const QString what = words.value(0), where = words.value(1), value = words.value(2);
        const std::map<QString, std::function<void()>> steps = {
            {QStringLiteral("start"), [&] { app_.setVisible(true); }},
            {QStringLiteral("new"), [&] { app_.addWorkbook(); }},
            {QStringLiteral("open"), [&] { app_.openWorkbook(song_); }},
            {QStringLiteral("saveas"), [&] { app_.saveActiveWorkbookAs({where.isEmpty() ? song_ : where}); }},
            {QStringLiteral("save"), [&] { app_.saveActiveWorkbook(); }},
            {QStringLiteral("close"), [&] { app_.closeActiveWorkbook(); }},
            {QStringLiteral("quit"), [&] { app_.quit(); }},
            {QStringLiteral("grip"), [&] { grip(where, value); }},
            {QStringLiteral("set"), [&] { app_.setValue(where, value); }},
            {QStringLiteral("type"), [&] { app_.commands().type(parseAddress(where)->first, value); }},
            {QStringLiteral("undo"), [&] { app_.commands().undo(); }},
            {QStringLiteral("insert"), [&] { app_.commands().insertRow(); }},
            {QStringLiteral("trouble"), [&] { tell(QStringLiteral("trouble ") + app_.trouble()); }},
            {QStringLiteral("rename"), [&] { app_.renameActiveSheet(where); }},
            {QStringLiteral("wait"),
             [] {
                 std::string line;
                 std::getline(std::cin, line);
             }},
        };
        steps.at(what)();
    }

    void grip(const QString& address, const QString& tones) {
        CellBlock block(1);
        for (const QString& tone : tones.split(QLatin1Char(' ')))
            block[0].append(tone);
        app_.writeBlock(address, block);
    }

    QString cells() const {
        const Document* document = app_.session().active();
        if (!document) return {};
        QStringList found;
        for (int sheet = 1; sheet <= document->cells().sheetCount(); ++sheet)
            for (int row = 1; row <= document->cells().usedRows(sheet); ++row)
                for (int column = 1; column <= document->cells().usedColumns(sheet); ++column)
                    if (const CellValue value = document->cells().value(sheet, {row, column});
                        !isEmpty(value))
                        found << QStringLiteral("%1!%2%3=%4")
                                     .arg(document->cells().sheetName(sheet), columnLetters(column))
                                     .arg(row)
                                     .arg(cellText(value));
        return found.join(QLatin1Char('|'));
    }

    QString song_;
    HomeDrive drive_{QStringLiteral("/"), {}};
    OneAnswer dialogs_;
    NoSettings settings_;
    EmbeddedApplication app_;
};

} // namespace

} // namespace zvonika

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 4) return 2;
    zvonika::SongSession session(words[1], words[2], words[3] == QLatin1String("yes"));
    for (int step = 4; step < words.size(); ++step)
        session.perform(step - 4, words[step]);
    ::fflush(stdout);
    ::_exit(0); // as when the program is ended from outside: nothing is closed properly
}
