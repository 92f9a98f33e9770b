#include <gtest/gtest.h>

#include "inspection/true_position.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

TEST(TruePositionSolver, TwiceTheDistance) {
    EXPECT_EQ(TruePosition(1.5, -2).value(), 5);
    EXPECT_THROW(TruePosition(1E200, 0), RunTimeError);  // the square overflows
}

TEST(TruePosition, NoTestEmptyCountsAsZeroAndClearAll) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtXpos=.003", "txtYpos=.004"}, "True Position=  .01"},
        {{"txtXpos=.0031", "txtYpos=.0041"}, "True Position=  .01"},  // DecPlace
        {{}, "True Position=  0"},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        h.app.decPlace = 3;
        EXPECT_EQ(h.run("frmTruePos", steps + QStringList{"Command1"}).text("txtTPosAns"), answer);
        EXPECT_EQ(h.lastBox(), "");
    }
    Harness h;
    Form& f = h.run("frmTruePos", {"txtXpos=1", "txtYpos=1", "Command1", "Command2"});
    EXPECT_EQ(f.text("txtXpos") + f.text("txtYpos") + f.text("txtTPosAns"), "");
}

}  // namespace
}  // namespace tavrin
