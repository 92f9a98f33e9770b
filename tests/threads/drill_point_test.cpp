#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

// Drill tip and countersink: figures worked apart from the code.
TEST(DrillTip, CalculateRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtDrillDiam=.5", "txtDrillAngle=118"}, "|Compensation=  .150215"},
        {{"txtDrillDiam=.5", "txtDrillAngle=118", "txtDrillFlat=.1"}, "|Compensation=  .120172"},
        {{"txtDrillDiam=.5", "txtDrillAngle=118", "txtDrillFlat=.5"}, "|Compensation=  0"},
        {{"txtDrillDiam=.5", "txtDrillAngle=180"}, "|Compensation=  0"},  // a huge tangent
        {{"txtDrillDiam=.5", "txtDrillAngle=118", "txtDrillFlat=.6"},
         "Error, Flat size cannot be greater than the drill diameter.|earlier"},
        {{"txtDrillDiam=-1", "txtDrillAngle=118"},  // the flat test first: -1 is below 0
         "Error, Flat size cannot be greater than the drill diameter.|earlier"},
        {{"txtDrillAngle=118"}, "Error, Drill and Angle must be greater than zero.|earlier"},
        {{"txtDrillDiam=.5"}, "Error, Drill and Angle must be greater than zero.|earlier"},
    };
    for (const auto& [steps, answer] : rows) {
        EXPECT_EQ(testing::Outcome("frmDrillTip",
                                   QStringList{"txtDrillCompAns=earlier"} + steps << "Command1",
                                   "txtDrillCompAns", 6),
                  answer)
            << steps.join(' ');
    }
}

// Angle, diameter, depth typed; the box shown and the three fields after.
TEST(Countersink, CalculateRows) {
    const std::tuple<QStringList, const char*, const char*> rows[] = {
        {{"", ".5", ""}, "You must fill two data fields.", "|.5|"},
        {{"82", ".5", ".3"}, "Please fill only two data fields.", "82|.5|.3"},
        {{"82", ".5", ""}, "", "82|.5| .2876"},
        {{"82", "", ".2875"}, "", "82| .4998|.2875"},
        {{"", ".5", ".2875"}, "", " 82|.5|.2875"},
        {{"", ".5", ".3"}, "", " 79.6|.5|.3"},  // one place, whatever DecPlace says
        {{"0", ".5", ""}, "Error, Values must be greater than zero.", "0|.5|"},
        {{"82", "x", ""}, "Error, Values must be greater than zero.", "82|x|"},
        {{"", ".5", "0"}, "Error, Values must be greater than zero.", "|.5|0"},
    };
    for (const auto& [typed, box, fields] : rows) {
        testing::Harness h;
        Form& f = h.run("frmCounterSink", {"txtAngle=" + typed[0], "txtDiameter=" + typed[1],
                                           "txtDepth=" + typed[2], "Command1"});
        EXPECT_EQ(h.lastBox(), box) << typed.join(' ');
        EXPECT_EQ(f.text("txtAngle") + '|' + f.text("txtDiameter") + '|' + f.text("txtDepth"),
                  fields);
        // Only the two kinds of filling message send the focus to the diameter.
        EXPECT_EQ(f.focus() == "txtDiameter", QString(box).contains("fill")) << typed.join(' ');
    }
}

}  // namespace
}  // namespace tavrin
