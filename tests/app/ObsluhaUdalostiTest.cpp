#include "app/ObsluhaUdalosti.h"

#include "app/OProgramu.h"
#include "tests/app/ZaznamovyShell.h"
#include "tests/support/ScriptedDialogs.h"

#include <gtest/gtest.h>

using namespace zvonika;
using zvonika::testing::ScriptedDialogs;
using zvonika::testing::ZaznamovyShell;

TEST(ObsluhaUdalosti, AFailureEndsInOneBoxWithItsCauseLast) {
    ScriptedDialogs dialogs;
    ZaznamovyShell shell;
    ObsluhaUdalosti udalosti(dialogs, shell);
    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 1004\nSoubor je prázdný.");
    EXPECT_FALSE(udalosti.proved([] { throw RuntimeError(1004, "Soubor je prázdný."); }));
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_TRUE(udalosti.proved([] {}));
    EXPECT_EQ(dialogs.count, 1);
    EXPECT_FALSE(shell.ukonceno);
}

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

TEST(ObsluhaUdalosti, AnUntrappedFailureIsReportedOnceAndEndsTheProcess) {
    ScriptedDialogs dialogs;
    ZaznamovyShell shell;
    ObsluhaUdalosti udalosti(dialogs, shell);
    dialogs.expect("", "'9'");
    udalosti.provedBezZachyceni([] { throw RuntimeError(error::subscriptOutOfRange); });
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_TRUE(shell.ukonceno);
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

TEST(OProgramu, OnlyYesToItsQuestionEndsTheProgram) {
    ScriptedDialogs dialogs;
    for (const Answer odpoved : {Answer::No, Answer::Yes}) {
        dialogs.expect("Konec programu !", "Opravdu chcete ukončit program ?", odpoved);
        EXPECT_EQ(mnuKonec(dialogs), odpoved == Answer::Yes);
        EXPECT_EQ(dialogs.last.icon, Icon::None);
        EXPECT_EQ(dialogs.last.buttons, Buttons::YesNo);
    }
}
