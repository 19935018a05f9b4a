#include "app/ObsluhaUdalosti.h"

#include "app/OProgramu.h"
#include "tests/app/ZaznamovyShell.h"
#include "tests/support/ScriptedDialogs.h"

#include <gtest/gtest.h>

using namespace zvonika;
using zvonika::testing::ScriptedDialogs;
using zvonika::testing::ZaznamovyShell;

TEST(ObsluhaUdalosti, WhileOneProcedureRunsNoOtherStarts) {
    ScriptedDialogs dialogs;
    ZaznamovyShell shell;
    ObsluhaUdalosti udalosti(dialogs, shell);
    int vnitrnich = 0;
    udalosti.proved([&] { udalosti.proved([&] { ++vnitrnich; }); });
    EXPECT_EQ(vnitrnich, 0);
    udalosti.proved([&] { ++vnitrnich; });
    EXPECT_EQ(vnitrnich, 1);
}

TEST(OProgramu, MailIsExplainedAndTheLinkKeepsItsQuotationMark) {
    ScriptedDialogs dialogs;
    ZaznamovyShell shell;
    dialogs.expect("Děkuji za Váš příspěvek.", "Minimalizujte Tamíka na lištu");
    mnuMailAutorovi(dialogs, shell);
    ASSERT_EQ(shell.odkazy.size(), 1);
    EXPECT_TRUE(shell.odkazy.first().startsWith("\"mailto:"));
    EXPECT_TRUE(shell.odkazy.first().endsWith("?subject=Z Drafudo verze 2.1&body=Dobrý den & attach = "));
}
