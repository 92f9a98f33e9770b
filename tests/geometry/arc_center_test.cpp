#include <gtest/gtest.h>

#include "geometry/arc_center.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

QString Shown(const ArcCenterAnswer& a) {
    return a.refusal + a.lines;
}

TEST(ArcCenterSolver, CentreRadiusAndRefusals) {
    EXPECT_EQ(Shown(ArcCenter(0, 1, 1, 2, 2, 1, 4)),
              "X Arc Center=  1\r\nY Arc Center=  1\r\nRadius=  1");
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 4, 0, 4)),
              "X Arc Center=  2\r\nY Arc Center= -1\r\nRadius=  2.2361");
    EXPECT_EQ(Shown(ArcCenter(0, 0, 0, 1, 4, 0, 4)), "Error, Invalid input.");  // X2 on X1
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 0, 4, 4)), "Error, Invalid input.");  // X3 on X1
    EXPECT_EQ(Shown(ArcCenter(0, 0, 1, 1, 2, 2, 4)), "Error, Straight Line.");
}

TEST(ArcCenter, HandlerRows) {
    const QStringList points{"txtX1A=0", "txtY1A=1", "txtX2A=1", "txtY2A=2", "txtX3A=2"};
    const std::pair<QStringList, const char*> rows[] = {
        {points + QStringList{"txtY3A=1"}, "X Arc Center=  1\r\nY Arc Center=  1\r\nRadius=  1"},
        {points, "Error, Please fill all data fields."},
        {points + QStringList{"txtY3A=+1"}, "Error, Invalid data in one or more fields."},
        {points + QStringList{"txtY3A=3"}, "Error, Straight Line."},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmArcCenter", {"txtArcCenter=earlier"});
        h.run("frmArcCenter", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox().isEmpty() ? f.text("txtArcCenter") : h.lastBox(), shown);
        // a refusal empties the box, a test before it leaves it
        const bool refused = QString(shown).startsWith("Error, Straight");
        EXPECT_EQ(f.text("txtArcCenter").isEmpty(), refused) << shown;
    }
}

TEST(ArcCenter, ImageShowsItsPictureAndClearAllEmpties) {
    testing::Harness h;
    Form& f = h.run("frmArcCenter", {"txtX1A=0", "txtY1A=1", "txtX2A=1", "txtY2A=2", "txtX3A=2",
                                     "txtY3A=1", "Command1", "Command2", "Command3"});
    QString all;
    for (const char* n :
         {"txtX1A", "txtY1A", "txtX2A", "txtY2A", "txtX3A", "txtY3A", "txtArcCenter"}) {
        all += f.text(n);
    }
    EXPECT_EQ(all, "");
    EXPECT_EQ(h.ui.shownWindows.last(), "frmThreePointView");
}

}  // namespace
}  // namespace tavrin
