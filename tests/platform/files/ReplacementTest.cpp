// What a disk of Windows may answer, on every system.
#include "platform/files/Replacement.h"

#include "platform/files/FileNames.h"
#include "platform/files/Patience.h"
#include "platform/files/WindowsErrors.h"
#include "tests/support/PrintQt.h"

#include <QList>
#include <QMap>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

/// Files by name, and an order of errors that the next steps fail with; 0: the step is done.
class OrderedDisk : public DiskSteps {
public:
    QMap<QString, QString> files;
    QList<unsigned long> errors;
    bool losesTheName = false; ///< a replacement that fails has given the old file its new name before

    bool exists(const QString& path) override { return files.contains(path); }
    unsigned long replace(const QString& target, const QString& fresh, const QString& backup) override {
        const unsigned long error = next();
        if (error == 0 || losesTheName) files[backup] = files.take(target);
        if (error == 0) files[target] = files.take(fresh);
        return error;
    }
    unsigned long move(const QString& from, const QString& to, bool over) override {
        if (const unsigned long error = next()) return error;
        if (files.contains(to) && !over) return 183;
        files[to] = files.take(from);
        return 0;
    }
    void remove(const QString& path) override { files.remove(path); }

private:
    unsigned long next() { return errors.isEmpty() ? 0 : errors.takeFirst(); }
};

const Patience noWaiting([](int) {});

unsigned long replaceOn(OrderedDisk& disk) {
    return putInPlace(disk, noWaiting, "píseň", "nová", "stranou");
}

} // namespace

TEST(Replacement, OneOfTheTwoIsAlwaysThereWhateverStepFails) {
    const struct {
        const char* what;
        bool old, losesTheName;
        QList<unsigned long> errors;
        unsigned long told;
        QMap<QString, QString> after;
    } cases[] = {
        {"a new song", false, false, {}, 0, {{"píseň", "b"}}},
        {"a new song, no room", false, false, {112}, 112, {}},
        {"a new song, looked at", false, false, {32, 5}, 0, {{"píseň", "b"}}},
        {"all is well", true, false, {}, 0, {{"píseň", "b"}}},
        {"looked at three times", true, false, {32, 1175, 33}, 0, {{"píseň", "b"}}},
        {"a disk without rights", true, false, {50}, 0, {{"píseň", "b"}}},
        {"refused", true, false, {19}, 19, {{"píseň", "a"}}},
        {"a disk without rights refuses", true, false, {50, 19}, 19, {{"píseň", "a"}}},
        {"half-way, then the new one goes", true, true, {1177}, 0, {{"píseň", "b"}}},
        {"half-way, looked at, then the new one goes", true, true, {1177, 32}, 0, {{"píseň", "b"}}},
        {"half-way, back to the old one", true, true, {1177, 1117}, 1177, {{"píseň", "a"}}},
        {"half-way, nothing goes", true, true, {1177, 1117, 1117}, 1177, {{"stranou", "a"}, {"nová", "b"}}},
    };
    for (const auto& c : cases) {
        OrderedDisk disk;
        disk.files["nová"] = "b";
        if (c.old) disk.files["píseň"] = "a";
        disk.errors = c.errors;
        disk.losesTheName = c.losesTheName;
        EXPECT_EQ(replaceOn(disk), c.told) << c.what;
        EXPECT_EQ(disk.files, c.after) << c.what;
    }
}

TEST(Patience, AsksForTwoSecondsAndOnlyWhereItMayPass) {
    const struct {
        QList<unsigned long> answers; ///< the last one for ever
        unsigned long told;
        int waited; ///< ms; -1: some, but not all
    } cases[] = {
        {{0}, 0, 0}, {{112}, 112, 0}, {{32}, 32, Patience::longest}, {{5, 1175, 0}, 0, -1}, {{33, 2}, 2, -1}};
    for (const auto& c : cases) {
        QList<unsigned long> answers = c.answers;
        int waited = 0;
        const Patience patience([&](int pause) { waited += pause; });
        EXPECT_EQ(patience.ask([&] { return answers.size() > 1 ? answers.takeFirst() : answers.first(); }),
                  c.told);
        if (c.waited < 0)
            EXPECT_TRUE(waited > 0 && waited < Patience::longest) << waited;
        else
            EXPECT_EQ(waited, c.waited);
    }
}

TEST(WindowsErrors, AreSaidInTheWordsOfEverySystem) {
    const std::pair<unsigned long, std::errc> known[] = {{5, std::errc::permission_denied},
                                                         {32, std::errc::text_file_busy},
                                                         {112, std::errc::no_space_on_device},
                                                         {123, std::errc::illegal_byte_sequence},
                                                         {206, std::errc::filename_too_long}};
    for (const auto& [number, meaning] : known)
        EXPECT_EQ(windowsError(number), meaning) << number;
    EXPECT_FALSE(windowsError(0));
    EXPECT_EQ(windowsError(4321).value(), 4321);
}

TEST(FileNames, ThatWindowsDoesNotHaveAreToldWithWhatIsWrong) {
    const std::pair<const char*, const char*> names[] = {
        {"Ach synku.xls", ""},
        {"1. Ach synku", ""},
        {"Console.xls", ""},
        {"Com.xls", ""},
        {"Kočka: leze.xls", "v jeho jménu je znak „:“, který tam být nesmí"},
        {"Kdo?.xls", "v jeho jménu je znak „?“, který tam být nesmí"},
        {"\"Ach\".xls", "v jeho jménu je znak „\"“, který tam být nesmí"},
        {"a\tb.xls", "v jeho jménu je znak „→“, který tam být nesmí"},
        {"con.xls", "jméno „con“ patří ve Windows zařízení a soubor ho mít nesmí"},
        {"LPT1", "jméno „LPT1“ patří ve Windows zařízení a soubor ho mít nesmí"},
        {"nul .a.xls", "jméno „nul “ patří ve Windows zařízení a soubor ho mít nesmí"},
        {"Ach.", "jeho jméno nesmí končit tečkou ani mezerou"},
        {"Ach ", "jeho jméno nesmí končit tečkou ani mezerou"},
    };
    for (const auto& [name, why] : names)
        EXPECT_EQ(forbiddenOnWindows(name).toStdString(), why) << name;
}

} // namespace zvonika
