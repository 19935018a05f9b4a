#include "tests/spreadsheet/contract/SpreadsheetContract.h"
#include "tests/support/SpreadsheetWorld.h"

namespace zvonika::testing {
namespace {

class WatchedRig : public SpreadsheetRig, SpreadsheetWorld {
public:
    std::unique_ptr<SpreadsheetApplication> launch() override { return SpreadsheetWorld::launch(); }
    QString folder() const override { return drive.nativePath(pracovniAdresar); }
    void willChoose(const std::optional<QString>& file) override {
        dialogs.expectFile(QStringLiteral("Vyberte písničku"), file);
    }
    void willSaveChanges(bool save) override {
        dialogs.expect(jmenoTabulky, QStringLiteral("Chcete ho uložit?"), save ? Answer::Yes : Answer::No);
    }
    void userClosesWorkbook(SpreadsheetApplication& app) override { watched(app).userClosesWorkbook(); }
    void userQuits(SpreadsheetApplication& app) override { watched(app).userQuits(); }

private:
    static WatchedSpreadsheet& watched(SpreadsheetApplication& app) {
        return dynamic_cast<WatchedSpreadsheet&>(app);
    }
};

std::unique_ptr<SpreadsheetRig> makeWatchedRig() {
    return std::make_unique<WatchedRig>();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Watched, SpreadsheetContract,
                         ::testing::Values(SpreadsheetRigFactory{"watched", makeWatchedRig}));

} // namespace zvonika::testing
