#include <gtest/gtest.h>

#include "quickcode/grid.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

// Holes from 0,0, steps 1 and 1, four places, unless a row says otherwise;
// the list, or the lines looked at.
QString Grid(Real hx, Real hy, Real sx = 1, int places = 4, bool noNumbers = false) {
    return GridList({0, 0, hx, hy, sx, 1, noNumbers}, places, [] { return true; });
}

TEST(GridSolver, RowsBackAndForthOnRoundedPositions) {
    EXPECT_EQ(Grid(3, 2),
              " 1] X0.0Y0.0\r\n 2] X1.0Y0.0\r\n 3] X2.0Y0.0\r\n 4] X2.0Y1.0\r\n"
              " 5] X1.0Y1.0\r\n 6] X0.0Y1.0\r\n");
    EXPECT_TRUE(Grid(3, 3).endsWith(" 7] X0.0Y2.0\r\n 8] X1.0Y2.0\r\n 9] X2.0Y2.0\r\n"));
    // -.1 - .14 rounds to -.2: each hole builds on the rounded one before
    EXPECT_TRUE(Grid(3, 1, -.14, 1).endsWith(" 2] X-0.1Y0.0\r\n 3] X-0.2Y0.0\r\n"));
    EXPECT_EQ(Grid(2.5, 2).count("\r\n"), 8);  // five holes, written a pair of rows at a time
    EXPECT_EQ(Grid(2, 1, 0, 4, true), "X0.0Y0.0\r\nX0.0Y0.0\r\n");
    EXPECT_EQ(Grid(3, 0).count("\r\n"), 6);      // no hole, still a pair of rows
    EXPECT_THROW(Grid(200, 200), RunTimeError);  // 40000 holes overflow 16 bits
}

TEST(GridSolver, ACountThatWritesNoHoleRunsUntilTheWindowCloses) {
    int passes = 0;
    const QString list = GridList({0, 0, -2, -3, 1, 1, false}, 4, [&] { return ++passes < 500; });
    EXPECT_EQ(list + QString::number(passes), "500");
}

TEST(Grid, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtX=1a"}, "Error, one or more fields contain invalid data."},
        {{"txtYstep=+1", "txtHx="}, "Error, one or more fields contain invalid data."},
        {{"txtHy="}, "Please fill all data fields."},
    };
    const QStringList job{"txtX=0",     "txtY=0",     "txtHx=2",           "txtHy=3",
                          "txtXstep=1", "txtYstep=1", "txtGridAns=earlier"};
    for (const auto& [steps, box] : rows) {
        EXPECT_EQ(testing::Outcome("frmGrid", job + steps << "Command1", "txtGridAns"),
                  QString(box) + "|earlier");
    }
    testing::Harness h;
    QString waiting;
    h.ui.onProcessEvents = [&] {
        waiting = waiting.isEmpty() ? h.app.find("frmGrid")->text("txtGridAns") : waiting;
    };
    Form& f = h.run("frmGrid", job + QStringList{"Command1", "Command3"});
    EXPECT_EQ(waiting, "Please wait...\r\nCalculating  6 holes");
    EXPECT_EQ(f.text("txtGridAns").left(12), " 1] X0.0Y0.0");
    EXPECT_EQ(h.lastBox(), "Enter negative or positive step values to set pattern direction.");
}

}  // namespace
}  // namespace tavrin
