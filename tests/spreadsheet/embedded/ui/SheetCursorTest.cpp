#include "tests/spreadsheet/embedded/ui/SheetWindowFixture.h"

namespace zvonika::testing {
namespace {

class SheetCursor : public SheetWindowFixture {
protected:
    std::string shownCell() const {
        const QModelIndex active = table().activeCell();
        return absoluteAddress(CellPosition{active.row() + 1, active.column() + 1}).toStdString();
    }
};

TEST_F(SheetCursor, FollowsTheProgramIntoSight) {
    for (const char* address : {"$B$400", "$W$7", "$B$1"}) {
        application.selectRange(QLatin1String(address));
        EXPECT_EQ(shownCell(), address);
        EXPECT_TRUE(table().viewport()->rect().contains(table().visualRect(table().activeCell()))) << address;
    }
    EXPECT_EQ(listener.take(), QString());
}

TEST_F(SheetCursor, ASelectionKeepsItsActiveCell) {
    click("B2");
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(cursor(), "$B$2");
    EXPECT_EQ(shownCell(), "$B$2");
    press(Qt::Key_Delete);
    type("c");
    press(Qt::Key_Return);
    EXPECT_EQ(text("B2"), QStringLiteral("c")) << "typing starts in the active cell";

    application.selectRange(QStringLiteral("B1:B500"));
    EXPECT_EQ(shownCell(), "$B$1");
    EXPECT_EQ(table().selectionModel()->selectedIndexes().size(), 500);
}

TEST_F(SheetCursor, StaysWhileACellIsEdited) {
    click("A1");
    type("ne");
    application.selectRange(QStringLiteral("B5"));
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(text("A1"), QString()) << "nothing is written half-way";
    press(Qt::Key_Return);
    EXPECT_EQ(text("A1"), QStringLiteral("ne"));
    EXPECT_EQ(shownCell(), "$B$5");
    EXPECT_EQ(cursor(), "$B$5");
}

} // namespace
} // namespace zvonika::testing
