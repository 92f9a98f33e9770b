#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

// Figures worked apart from the code. A .5 drill of 118 degrees unless a step says otherwise.
TEST(DrillTip, CalculateRows) {
    const QString flat = "Error, Flat size cannot be greater than the drill diameter.|earlier";
    const QString zero = "Error, Drill and Angle must be greater than zero.|earlier";
    const std::pair<QStringList, QString> rows[] = {
        {{"txtDrillFlat=.1"}, "|Compensation=  .120172"},
        {{"txtDrillFlat=.5"}, "|Compensation=  0"},
        {{"txtDrillFlat=.6"}, flat},
        {{"txtDrillDiam=-1"}, flat},  // the flat test first: -1 is below 0
        {{"txtDrillDiam="}, zero},
        {{"txtDrillAngle="}, zero},
    };
    const QStringList job{"txtDrillCompAns=earlier", "txtDrillDiam=.5", "txtDrillAngle=118"};
    for (const auto& [steps, answer] : rows) {
        EXPECT_EQ(testing::Outcome("frmDrillTip", job + steps << "Command1", "txtDrillCompAns", 6),
                  answer)
            << steps.join(' ');
    }
}

// Angle|diameter|depth typed; the box, then the fields; a filling message focuses the diameter.
TEST(Countersink, CalculateRows) {
    const std::pair<QString, QString> rows[] = {
        {"|.5|", "You must fill two data fields.||.5|"},
        {"82|.5|.3", "Please fill only two data fields.|82|.5|.3"},
        {"82|.5|", "|82|.5| .2876"},
        {"82||.2875", "|82| .4998|.2875"},
        {"|.5|.3", "| 79.6|.5|.3"},  // one place, whatever DecPlace says
        {"0|.5|", "Error, Values must be greater than zero.|0|.5|"},
        {"82|x|", "Error, Values must be greater than zero.|82|x|"},
        {"|.5|0", "Error, Values must be greater than zero.||.5|0"},
    };
    for (const auto& [typed, after] : rows) {
        testing::Harness h;
        const QStringList t = typed.split('|');
        Form& f = h.run("frmCounterSink", {"txtAngle=" + t[0], "txtDiameter=" + t[1],
                                           "txtDepth=" + t[2], "Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtAngle") + '|' + f.text("txtDiameter") + '|' +
                      f.text("txtDepth"),
                  after);
        EXPECT_EQ(f.focus() == "txtDiameter", after.contains("fill")) << typed;
    }
}

}  // namespace
}  // namespace tavrin
