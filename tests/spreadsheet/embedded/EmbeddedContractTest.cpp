#include "spreadsheet/Address.h"
#include "tests/spreadsheet/contract/FileContract.h"
#include "tests/spreadsheet/contract/StepContract.h"
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
    void willAnswer(const QString& textPart, Answer answer) override {
        world_.dialogs.expect(jmenoTabulky, textPart, answer);
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
    void userEnters(SpreadsheetApplication& application, const QString& cell, const QString& text) override {
        dynamic_cast<EmbeddedApplication&>(application)
            .commands()
            .type(parseAddress(cell).value().first, text);
    }
    QStringList userSavesAs(SpreadsheetApplication& application, const QString& nativePath) override {
        RigListener listener;
        world_.dialogs.expectFile(QStringLiteral("Uložit"), nativePath);
        application.setListener(&listener);
        commands(application).saveAs();
        application.setListener(nullptr);
        return listener.renamed;
    }
    void kill(std::unique_ptr<SpreadsheetApplication> application) override { application.reset(); }
    void willBeOffered(const QString& words, bool takesBack) override {
        world_.dialogs.expect(jmenoTabulky, words, takesBack ? Answer::Yes : Answer::No);
    }

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

const auto embedded = ::testing::Values(SpreadsheetRigFactory{"embedded", makeEmbeddedRig});
INSTANTIATE_TEST_SUITE_P(Embedded, SpreadsheetContract, embedded);
INSTANTIATE_TEST_SUITE_P(Embedded, RecoveryContract, embedded);

} // namespace zvonika::testing
