#include "spreadsheet/journal/JournalledSpreadsheet.h"
#include "tests/spreadsheet/contract/FileContract.h"
#include "tests/spreadsheet/contract/StepContract.h"
#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QTest>

#include <csignal>

namespace zvonika::testing {

namespace {

class CalcRig : public SpreadsheetRig {
public:
    std::unique_ptr<SpreadsheetApplication> launch() override {
        auto application = std::make_unique<JournalledSpreadsheet>(
            world_.launch(), world_.dialogs, jmenoCalcu, JournalFolder(journals_.path()));
        application->setVisible(true);
        application->setListener(&listener_);
        return application;
    }
    QString folder() const override { return world_.folder.path(); }
    void willChoose(const std::optional<QString>& file) override {
        world_.dialogs.expectFile(QStringLiteral("Vyberte písničku"), file);
    }
    void willAnswer(const QString& textPart, Answer answer) override {
        world_.dialogs.expect(jmenoCalcu, textPart, answer);
    }
    void willSaveChanges(bool save) override {
        world_.dialogs.expect(jmenoCalcu, QStringLiteral("má neuložené změny. Chcete ho uložit?"),
                              save ? Answer::Yes : Answer::No);
    }
    void userTypes(SpreadsheetApplication& application, const QString& text) override {
        EXPECT_TRUE(VirtualScreen::type(application.activeWorkbookName(), text));
    }
    void userClosesWorkbook(SpreadsheetApplication& application) override {
        EXPECT_TRUE(VirtualScreen::press(application.activeWorkbookName(), {"ctrl+w"}));
        EXPECT_TRUE(QTest::qWaitFor([&] { return application.activeWorkbookName().isEmpty(); }, 30000));
    }
    void userQuits(SpreadsheetApplication& application) override {
        EXPECT_TRUE(VirtualScreen::press(application.activeWorkbookName(), {"ctrl+q"}));
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return raised([&] { application.activeWorkbookName(); }) == 91; }, 30000));
    }
    void userEnters(SpreadsheetApplication& application, const QString& cell, const QString& text) override {
        application.selectRange(cell);
        const int before = listener_.edited;
        EXPECT_TRUE(VirtualScreen::type(application.activeWorkbookName(), text));
        EXPECT_TRUE(VirtualScreen::press(application.activeWorkbookName(), {"Return"}));
        EXPECT_TRUE(QTest::qWaitFor([&] { return listener_.edited > before; }, 30000));
    }
    QStringList userSavesAs(SpreadsheetApplication& application, const QString& nativePath) override {
        EXPECT_TRUE(VirtualScreen::press(application.activeWorkbookName(), {"ctrl+shift+s"}));
        EXPECT_TRUE(QTest::qWaitFor([] { return VirtualScreen::hasWindow("Save As"); }, 30000));
        EXPECT_TRUE(VirtualScreen::press("Save As", {"ctrl+a"}) &&
                    VirtualScreen::type("Save As", nativePath) &&
                    VirtualScreen::press("Save As", {"Return"}));
        EXPECT_TRUE(QTest::qWaitFor([this] { return !listener_.renamed.isEmpty(); }, 30000));
        return std::exchange(listener_.renamed, {});
    }
    void kill(std::unique_ptr<SpreadsheetApplication> application) override {
        if (const pid_t office = world_.office(); office > 0) ::kill(office, SIGKILL);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return raised([&] { application->activeWorkbookName(); }) == 91; }, 30000));
        application->endStep(); // the program lives on
    }
    void willBeOffered(const QString& words, bool takesBack) override {
        world_.dialogs.expect(jmenoCalcu, words, takesBack ? Answer::Yes : Answer::No);
    }

private:
    CalcWorld world_;
    QTemporaryDir journals_;
    RigListener listener_;
};

std::unique_ptr<SpreadsheetRig> makeCalcRig() {
    return std::make_unique<CalcRig>();
}

} // namespace

const auto calc = ::testing::Values(SpreadsheetRigFactory{"calc", makeCalcRig});
// What the user has been asked about is settled, however soon Calc is gone afterwards.
TEST(CalcRecovery, WhatTheUserGaveUpInCalcIsNotOffered) {
    for (const char* keys : {"ctrl+w", "ctrl+q"}) {
        CalcRig rig;
        const QString song = rig.folder() + "/Kočka.xls";
        auto app = rig.launch();
        app->addWorkbook();
        app->saveActiveWorkbookAs({song});
        app->setValue("B1", QString("c,"));
        app->finishWriting();
        ASSERT_TRUE(VirtualScreen::press("Kočka.xls", {keys}));
        ASSERT_TRUE(QTest::qWaitFor([] { return VirtualScreen::hasWindow("Save Document"); }, 30000));
        ASSERT_TRUE(VirtualScreen::press("Save Document", {"alt+n"}));
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return raised([&] { app->activateWindow("Kočka.xls"); }) != 0; }, 30000));
        QCoreApplication::processEvents(); // what Calc has told of it
        rig.kill(std::move(app));
        app = rig.launch();
        app->openWorkbook(song);
        EXPECT_EQ(cellText(app->value("B1")), QString()) << keys;
    }
}

INSTANTIATE_TEST_SUITE_P(Calc, SpreadsheetContract, calc);
INSTANTIATE_TEST_SUITE_P(Calc, RecoveryContract, calc);

} // namespace zvonika::testing
