#include <gtest/gtest.h>

#include <deque>

#include "geometry/rotate.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(RotateSolver, ShiftRotateAndFourPlaces) {
    EXPECT_EQ(
        RotatedPointsText({RotatePoint(2, 3, 1, -1, RotationRadians(30)), {0.00005, -0.00015}}),
        "X-1.134 Y 3.9641\r\nX 0 Y-.0001\r\n");  // four places
}

// Runs frmRotate with the points typed into each modal window as it comes; a
// window left up by its steps is closed by its box.
struct RotateRun {
    testing::Harness h;
    std::deque<QStringList> entries;  // the steps for each modal window in turn
    QStringList captions;             // of each modal window as it came

    explicit RotateRun(std::deque<QStringList> points) : entries(std::move(points)) {
        h.ui.onModal = [this](Form& entry) {
            captions << entry.caption("lblPointNum") + "|" + entry.caption("lblX") + "|" +
                            entry.caption("lblY") + "|" + entry.text("txtXtoShift");
            h.run(entry.name(), entries.front());
            entries.pop_front();
            if (h.ui.isModal(entry)) {
                h.app.userClose(entry);
            }
        };
    }
};

// The second window closed by its box counts as empty.
TEST(Rotate, EnterPointsAsksForEachPointInItsOwnModalWindow) {
    RotateRun run({{"txtXtoShift=3", "txtYtoShift=4 ", "Command1"},
                   {"txtXtoShift=5"},
                   {"txtXtoShift=1.50", "txtYtoShift=", "Command1"}});
    Form& f = run.h.run("frmRotate", {"txtXNewOrigin=1", "txtYNewOrigin=1", "cboPoints=3",
                                      "txtRotated=earlier", "Command1"});
    EXPECT_EQ(f.text("txtRotated"), "X 2 Y 3\r\nX-1 Y-1\r\nX .5 Y-1\r\n");
    EXPECT_EQ(run.captions,
              QStringList({"Point # 1|X 1|Y 1|", "Point # 2|X 2|Y 2|", "Point # 3|X 3|Y 3|"}));
    run.h.run("frmRotate", {"Command2"});  // the points as typed
    EXPECT_EQ(run.h.app.find("frmoldpoints")->text("Text1"),
              " X 3 Y 4 \r\n X  Y \r\n X 1.50 Y \r\n");
    run.h.run("frmoldpoints", {"Command1"});  // Exit
    EXPECT_EQ(run.h.app.find("frmoldpoints"), nullptr);
}

TEST(Rotate, NoPointsLeaveAnEmptyAnswerAndFortyComeOneByOne) {
    RotateRun none({});
    Form& f = none.h.run("frmRotate", {"txtRotated=earlier", "cboPoints=0", "Command1"});
    EXPECT_EQ(f.text("txtRotated") + none.h.app.oldPointsText, "");
    RotateRun many(std::deque<QStringList>(40, {"txtXtoShift=1", "Command1"}));
    Form& g = many.h.run("frmRotate", {"txtRotateDeg=90", "cboPoints=40", "Command1"});
    EXPECT_EQ(g.text("txtRotated").count("X 0 Y 1\r\n"), 40);
}

}  // namespace
}  // namespace tavrin
