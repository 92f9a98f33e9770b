#include <gtest/gtest.h>

#include "frame/window_kit.h"
#include "quickcode/bolt_circle.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

struct HoleRow {
    Real diameter, holes, xc, yc, start;
    std::int16_t places;
    std::size_t count, k;  // holes listed, the hole looked at
    double x, y;
    const char* fault;
};

TEST(BoltCircleSolver, HoleRows) {
    const HoleRow rows[] = {
        {2, 4.5, 0, 0, 0, 4, 4, 1, 0.1736, 0.9848, "4.5 holes: four, 80 degrees apart"},
        {2, 5.5, 0, 0, 0, 4, 6, 1, 0.4154, 0.9096, "5.5 holes: six, the step keeps the half"},
        {3.5, 6, 1.25, -2, -45, 6, 6, 0, 2.487437, -3.237437, "centre added, six places"},
        {1, 4, .125, .375, 0, 2, 4, 0, 0.62, 0.38, "ties round to even"},
        {2E9, 4, 0, 0, 90, 6, 4, 0, 0.000002, 1E9, "the short pi shows on a large circle"},
        {100, 32767, 0, 0, 0, 4, 32767, 32766, 50, -0.0096, "the largest 16-bit count"},
    };
    for (const HoleRow& r : rows) {
        const auto holes = BoltCircleHoles(r.diameter, r.holes, r.xc, r.yc, r.start, r.places);
        ASSERT_EQ(holes.size(), r.count) << r.fault;
        EXPECT_EQ(holes[r.k].x.value(), r.x) << r.fault;
        EXPECT_EQ(holes[r.k].y.value(), r.y) << r.fault;
    }
    // Not taken modulo 360: the second of two holes from 359 stands at 539.
    EXPECT_EQ(BoltCircleHoles(2, 2, 0, 0, 359, 4)[1].angle.value(), 539);
}

TEST(BoltCircleSolver, TheListInBothLayouts) {
    // At 270 degrees X is -4.9E-15 before rounding: written without a sign.
    EXPECT_EQ(BoltCircleList(BoltCircleHoles(2, 4, 0, 0, 90, 4), false),
              " 1] X0.0Y1.0\r\n 2] X-1.0Y0.0\r\n 3] X0.0Y-1.0\r\n 4] X1.0Y0.0\r\n");
    EXPECT_EQ(BoltCircleList(BoltCircleHoles(2E9, 1, 0, 0, 90, 6), true),
              "X0.000002Y1000000000.0\r\n");
}

// Typed over a job with an earlier list in the box: the box shown, then the
// first line the answer box holds.
TEST(BoltCircle, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"Text3=1a", "Text1="}, "Error, Invalid input in one of the coordinate fields|earlier"},
        {{"Text4=+1"}, "Error, Invalid input in one of the coordinate fields|earlier"},
        {{"Text5=", "Text1=0"}, "Please fill all five data fields.|earlier"},
        {{"Text1=abc", "Text2=0"}, "Error, Diameter must be greater than zero.|earlier"},
        {{"Text2=-0", "Text5=999"}, "Error, # of holes must be greater than zero.|earlier"},
        {{"Text5=359.5x"}, "angle greater than 359 degrees.|earlier"},
        {{"Text5=12x"}, "Error, Invalid input in the angle data field|earlier"},
        {{"Text1=-2", "Text5=359"}, "| 1] X-0.9998Y0.0175"},  // a negative diameter is taken
        {{"Text5=-400", "chkNoNumbers"}, "|X0.766Y-0.6428"},
        {{"chkDMSbc", "Text5=358.9"}, "| 1] X1.0Y-0.0087"},  // tested as typed, 359.5 taken
    };
    const QStringList job{"Text1=2", "Text2=3", "Text3=0", "Text4=0", "Text5=90", "Text7=earlier"};
    for (const auto& [steps, said] : rows) {
        const QString shown = testing::Outcome("frmBoltCircle", job + steps << "Command1", "Text7");
        EXPECT_EQ(shown.section("\r\n", 0, 0), said) << steps.join(' ');
    }
}

TEST(BoltCircle, PaintsPleaseWaitOnceAndACountBeyondSixteenBitsIsFatalAfterIt) {
    testing::Harness h;
    QStringList seen;
    h.ui.onProcessEvents = [&] { seen << h.app.find("frmBoltCircle")->text("Text7"); };
    h.run("frmBoltCircle",
          {"Text1=2", "Text2=32767.5", "Text3=0", "Text4=0", "Text5=0", "Command1"});
    EXPECT_EQ(seen, QStringList{"Please wait...\r\nCalculating 32767.5 holes."});
    EXPECT_EQ(h.ui.fatalTexts(), QStringList{"Run-time error '6':\r\n\r\nOverflow"});
    EXPECT_TRUE(h.app.ended());
}

TEST(BoltCircle, HelpAndClearAllThatLeavesTheChecks) {
    testing::Harness h;
    Form& f = h.run("frmBoltCircle", {"Command3", "chkDMSbc", "chkNoNumbers", "Command2"});
    EXPECT_EQ(h.ui.messageTexts(),
              QStringList{"If entering the angle in Degrees Minutes Seconds enter " + DmsExample() +
                          " (always use a leading zero for minutes or seconds less than 10)\nA "
                          "neg. or pos. start angle may be entered. (To start before or after 3 "
                          "o'clock pos.)"});
    EXPECT_TRUE(f.value("chkDMSbc") && f.value("chkNoNumbers"));
}

TEST(QuickCodeHub, OpensTheGenerators) {
    testing::Harness h;
    h.run("frmQuickCode", {"Command1", "Command3"});
    EXPECT_TRUE(h.app.find("frmBoltCircle") != nullptr && h.app.find("frmThdMill") != nullptr);
}

}  // namespace
}  // namespace tavrin
