#include "tests/spreadsheet/contract/SpreadsheetContract.h"
#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QTest>

namespace zvonika::testing {

namespace {

class CalcRig : public SpreadsheetRig {
public:
    std::unique_ptr<SpreadsheetApplication> launch() override { return world_.launch(); }
    QString folder() const override { return world_.folder.path(); }
    void willChoose(const std::optional<QString>& file) override {
        world_.dialogs.expectFile(QStringLiteral("Vyberte písničku"), file);
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

private:
    CalcWorld world_;
};

std::unique_ptr<SpreadsheetRig> makeCalcRig() {
    return std::make_unique<CalcRig>();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Calc, SpreadsheetContract,
                         ::testing::Values(SpreadsheetRigFactory{"calc", makeCalcRig}));

} // namespace zvonika::testing
