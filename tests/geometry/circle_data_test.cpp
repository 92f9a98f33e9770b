#include <gtest/gtest.h>

#include "geometry/circle_data.h"
#include "tests/geometry/calculated.h"

// Expected figures worked in doubles apart from the code.
namespace tavrin {
namespace {

TEST(CircleDataSolver, EachSoughtFromEachField) {
    EXPECT_EQ(CircleDataValue(SeekRadius, true, 10).value(), 1.591545709192768);   // 6.2832
    EXPECT_EQ(CircleDataValue(SeekRadius, false, 2).value(), 0.7976164491784256);  // root first
    EXPECT_EQ(CircleDataValue(SeekDiameter, true, 10).value(), 3.183091418385536);
    EXPECT_EQ(CircleDataValue(SeekDiameter, false, 2).value(), 1.5952328983568511);
    EXPECT_EQ(CircleDataValue(SeekCircumference, true, 3).value(), 9.4248);
    EXPECT_EQ(CircleDataValue(SeekCircumference, false, 3).value(), 18.8496);  // a radius
    EXPECT_EQ(CircleDataValue(SeekArea, true, 3).value(), 7.0686);
}

TEST(CircleData, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtInput=10"}, "Radius=  1.5915"},
        {{"pupList#3", "txtInput2=1"}, "Area=  3.1416"},  // the area from a radius
        {{"pupList#1", "txtInput2=1"}, "Diameter=  1.128"},
        {{"pupList#2", "txtInput2=abc"}, "Circumference=  0"},  // filled, worth 0
        {{}, "Error, You must fill one data field."},
        {{"txtInput= ", "txtInput2=1"}, "Error, Please fill only one data field."},
        {{"txtInput2=-1"}, "Run-time error '5':\r\n\r\nInvalid procedure call or argument"},
    };
    for (const auto& [steps, shown] : rows) {
        EXPECT_EQ(testing::Calculated("frmCircleData", steps, {"lblAns2"}), shown)
            << steps.join(' ');
    }
}

TEST(CircleData, CaptionsFollowTheSought) {
    testing::Harness h;
    Form& f = h.run("frmCircleData", {"pupList#2"});
    EXPECT_EQ(f.caption("lblCd1") + "/" + f.caption("lblCd2"), "Radius/Diameter");
    h.run("frmCircleData", {"pupList#1"});
    EXPECT_EQ(f.caption("lblCd1") + "/" + f.caption("lblCd2"), "Area/Circumference");
}

}  // namespace
}  // namespace tavrin
