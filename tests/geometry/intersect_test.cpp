#include <gtest/gtest.h>

#include "geometry/intersect.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

QString Shown(const IntersectAnswer& a) {
    return a.refusal + a.lines;
}

TEST(IntersectSolver, CrossingsShortcutsAndRefusals) {
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 2, 2, 0, 2, 2, 0, 4)),
              "Intersection X=  1\r\nIntersection Y=  1");
    // a level first line answers with its first point
    EXPECT_EQ(Shown(IntersectTwoLines(0, 1, 2, 1, 0, 0, 1, 2, 4)),
              "Intersection X=  0\r\nIntersection Y=  1");
    // a level second line answers with its own height
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 2, 2, 0, 3, 5, 3, 4)),
              "Intersection X=  3\r\nIntersection Y=  3");
    EXPECT_EQ(Shown(IntersectTwoLines(1, 0, 1, 2, 3, 0, 3, 5, 4)), "Error, Invalid Input.");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 1, 2, 1, 0, 3, 5, 3, 4)), "Error, Invalid Input.");
    EXPECT_EQ(Shown(IntersectTwoLines(0, 0, 1, 1, 0, 2, 1, 3, 4)), "Error, Invalid Input.");
    EXPECT_THROW(IntersectTwoLines(1, 0, 1, 2, 0, 0, 1, 1, 4), RunTimeError);
    EXPECT_THROW(IntersectTwoLines(0, 0, 1, 1, 3, 0, 3, 5, 4), RunTimeError);
}

TEST(Intersect, HandlerRows) {
    const QStringList lines{"txtX1=0", "txtY1=0", "txtX2=2", "txtY2=2",
                            "txtX3=0", "txtY3=2", "txtX4=2"};
    const std::pair<QStringList, const char*> rows[] = {
        {lines + QStringList{"txtY4=0"}, "Intersection X=  1\r\nIntersection Y=  1"},
        {lines, "Error, Please fill all eight data fields."},
        {lines + QStringList{"txtY4=x"}, "Error, One or more data fields contain invalid data."},
        {lines + QStringList{"txtY4=4"}, "Error, Invalid Input."},
        {lines + QStringList{"txtX2=0", "txtY4=0"}, "Run-time error '11':\r\n\r\nDivision by zero"},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmIntersect", {"txtIntAns=earlier"});
        h.run("frmIntersect", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox().isEmpty() ? f.text("txtIntAns") : h.lastBox(), shown);
        if (QString(shown).startsWith("Error, Invalid")) {
            EXPECT_EQ(f.text("txtIntAns"), "");
        }
    }
}

TEST(Intersect, ClearAllEmpties) {
    testing::Harness h;
    Form& f = h.run("frmIntersect", {"txtX1=1", "txtY4=2", "txtIntAns=3", "Command2"});
    EXPECT_EQ(f.text("txtX1") + f.text("txtY4") + f.text("txtIntAns"), "");
}

}  // namespace
}  // namespace tavrin
