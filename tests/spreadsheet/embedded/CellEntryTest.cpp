#include "spreadsheet/embedded/CellEntry.h"

#include "spreadsheet/embedded/TabSeparatedText.h"
#include "spreadsheet/embedded/XlsValue.h"
#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

namespace zvonika {

TEST(CellValue, IsReadByTheProgramInItsShortestForm) {
    const std::pair<CellValue, const char*> texts[] = {
        {{}, ""},         {-0.5, "-0.5"},
        {0.1, "0.1"},     {true, "True"},
        {false, "False"}, {CellError{QStringLiteral("#N/A")}, "#N/A"},
        {1e20, "1e+20"},  {QStringLiteral("fis,"), "fis,"}};
    for (const auto& [value, text] : texts)
        EXPECT_EQ(cellText(value), QString::fromUtf8(text));
}

TEST(CellEntry, MeansANumberOnlyWhenItLooksLikeOne) {
    const std::pair<const char*, double> numbers[] = {{"15", 15},      {"3,5", 3.5},      {"3.5", 3.5},
                                                      {"-2", -2},      {"+0,25", .25},    {" 7 ", 7},
                                                      {"1E+20", 1e20}, {"2,5e-3", .0025}, {"007", 7}};
    for (const auto& [typed, number] : numbers)
        EXPECT_EQ(typedValue(QString::fromLatin1(typed)), CellValue(number)) << typed;
    for (const char* typed : {"c", "fis,", "3e2", "1.2.2026", "1/2", "=A1", "5 %", ",5", "5,", "1 000",
                              "12:30", "-", "l12;1\\", "1234567890123456", "1E+999", " "})
        EXPECT_EQ(typedValue(QString::fromLatin1(typed)), CellValue(QString::fromLatin1(typed))) << typed;
    EXPECT_EQ(typedValue(QStringLiteral("'15")), CellValue(QStringLiteral("15")));
    EXPECT_EQ(typedValue(QString()), CellValue());
}

TEST(CellEntry, WhatTheEditorShowsMeansTheSameWhenTypedAgain) {
    for (const CellValue& value : std::vector<CellValue>{
             15.0, -1e20, 2.5e-7, QStringLiteral("15"), QStringLiteral("'a"), QStringLiteral("c"), {}})
        EXPECT_EQ(typedValue(editText(value)), value) << editText(value).toStdString();
    EXPECT_EQ(editText(QStringLiteral("15")), QStringLiteral("'15"));
    EXPECT_EQ(displayText(QStringLiteral("15")), QStringLiteral("15"));
    EXPECT_EQ(displayText(-1234.5), QStringLiteral("-1234,5"));
    EXPECT_EQ(displayText(true), QStringLiteral("PRAVDA"));
    EXPECT_EQ(displayText(false), QStringLiteral("NEPRAVDA"));
}

TEST(XlsValue, ComesBackAsItWentIn) {
    for (const char* text : {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A"}) {
        const CellValue error = CellError{QString::fromLatin1(text)};
        EXPECT_EQ(fromXls(toXls(error)), error) << text;
    }
    EXPECT_EQ(fromXls(toXls(CellError{QStringLiteral("#CHYBA")})),
              CellValue(CellError{QStringLiteral("#N/A")}));
}

TEST(TabSeparatedText, ComesBackAsItWentIn) {
    const QVector<QStringList> rows{
        {QStringLiteral("Koč"), QStringLiteral("a\tb"), QString()},
        {QStringLiteral("\"ka\""), QStringLiteral("dva\nřádky"), QStringLiteral("5\"")}};
    EXPECT_EQ(fromTabSeparated(tabSeparated(rows)), rows);
    const QVector<QStringList> foreign{
        {QStringLiteral("a"), QStringLiteral("b")}, {QString()}, {QStringLiteral("c")}};
    for (const char* text : {"a\tb\n\nc", "a\tb\r\n\r\nc\r\n"})
        EXPECT_EQ(fromTabSeparated(QString::fromLatin1(text)), foreign) << text;
}

} // namespace zvonika
