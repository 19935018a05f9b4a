#include "spreadsheet/Address.h"
#include "tests/spreadsheet/contract/SpreadsheetContract.h"
#include "tests/spreadsheet/embedded/Rig.h"

namespace zvonika::testing {

namespace {

class EmbeddedRig : public SpreadsheetRig {
public:
    std::unique_ptr<SpreadsheetApplication> launch() override { return world_.launch(); }
    QString folder() const override { return world_.folder.path(); }
    void willChoose(const std::optional<QString>& file) override {
        world_.dialogs.expectFile(QStringLiteral("Vyberte písničku"), file);
    }
    void willSaveChanges(bool save) override {
        world_.dialogs.expect(jmenoTabulky, QStringLiteral("má neuložené změny. Chcete ho uložit?"),
                              save ? Answer::Yes : Answer::No);
    }
    void userTypes(SpreadsheetApplication& application, const QString& text) override {
        SheetCommands& sheet = commandsOf(application);
        world_.typing = [&sheet, cell = parseAddress(application.activeAddress())->first, text] {
            sheet.type(cell, text);
        };
    }
    void userClosesWorkbook(SpreadsheetApplication& application) override { commands(application).close(); }
    void userQuits(SpreadsheetApplication& application) override { commands(application).quit(); }

private:
    static SheetCommands& commandsOf(SpreadsheetApplication& application) {
        return dynamic_cast<EmbeddedApplication&>(application).commands();
    }
    static FileCommands& commands(SpreadsheetApplication& application) {
        return commandsOf(application).files();
    }

    World world_;
};

std::unique_ptr<SpreadsheetRig> makeEmbeddedRig() {
    return std::make_unique<EmbeddedRig>();
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Embedded, SpreadsheetContract,
                         ::testing::Values(SpreadsheetRigFactory{"embedded", makeEmbeddedRig}));

} // namespace zvonika::testing
