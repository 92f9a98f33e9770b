// A window shown modal: the driver says so, runs the next commands until the
// window is hidden or unloaded, and then the waiting handler goes on.

#include <gtest/gtest.h>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;

const QString kModal = R"({"event": "modal", "form": "frmPointsRotate"})";
const QByteArray kNext = "show frmPointsRotate.lblPointNum\nclick frmPointsRotate.Command1\n";

QByteArray Points(int count) {
    return "open frmRotate\nset frmRotate.cboPoints \"" + QByteArray::number(count) +
           "\"\nclick frmRotate.Command1\n";
}

TEST(DriveModal, APointWaitsForItsOwnWindowThenTheHandlerGoesOn) {
    const auto one = Drive(Points(1) + kNext + "show frmRotate.txtRotated\n");
    ASSERT_EQ(one.lines.size(), 3);
    EXPECT_EQ(one.lines[0], kModal);
    EXPECT_TRUE(one.lines[1].contains("Point # 1")) << "commands run while the window is up";
    EXPECT_TRUE(one.lines[2].contains(R"("text": "X)")) << "the handler went on after it";
}

TEST(DriveModal, ClosingEndsTheWaitAndTheInputOrAFaultEndsTheRun) {
    const auto closed = Drive(Points(1) + "close frmPointsRotate\nshow frmPointsRotate\n");
    EXPECT_TRUE(closed.lines.value(1).contains(R"("open": true)")) << "read again, loaded anew";
    const auto ended = Drive(Points(2) + "click frmPointsRotate.Command1\n");
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.lines, QStringList({kModal, kModal}));
    const auto error = Drive(Points(3) + "frobnicate\nshow frmRotate\n");
    EXPECT_TRUE(error.exitCode == 2 && error.lines.size() == 2);
    const auto fatal = Drive(Points(3) +
                             "open frmSfmToRpm\nset frmSfmToRpm.txtSfm \"1E400\"\n"
                             "set frmSfmToRpm.txtDia \"1\"\nclick frmSfmToRpm.Command1\n"
                             "show frmRotate\n");
    EXPECT_EQ(fatal.exitCode, 3);
    EXPECT_TRUE(fatal.lines.last().startsWith(R"({"event": "fatal")"));
}

}  // namespace
