#include <gtest/gtest.h>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;
using Session = tavrin::testing::DriveSession;

TEST(DriveQuickCode, ABoltCircleFromTheHub) {
    const Session s = Drive(
        "click frmHome.Command4\n"
        "click frmQuickCode.Command1\n"
        "set frmBoltCircle.Text1 \"2\"\n"
        "set frmBoltCircle.Text2 \"3\"\n"
        "set frmBoltCircle.Text3 \"0\"\n"
        "set frmBoltCircle.Text4 \"0\"\n"
        "set frmBoltCircle.Text5 \"90\"\n"
        "click frmBoltCircle.Command1\n"
        "show frmBoltCircle.Text7\n"
        "set frmBoltCircle.Text5 \"360\"\n"
        "click frmBoltCircle.Command1\n"
        "click frmBoltCircle.chkNoNumbers\n"
        "set frmBoltCircle.Text5 \"90\"\n"
        "click frmBoltCircle.Command1\n"
        "show frmBoltCircle.Text7\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 3);
    EXPECT_EQ(s.lines[0],
              "{\"control\": \"frmBoltCircle.Text7\", \"text\": \" 1] X0.0Y1.0\\r\\n 2] "
              "X-0.866Y-0.5\\r\\n 3] X0.866Y-0.5\\r\\n\", \"visible\": true, \"enabled\": true}");
    EXPECT_EQ(s.lines[1],
              "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"angle "
              "greater than 359 degrees.\"}");
    EXPECT_EQ(s.lines[2],
              "{\"control\": \"frmBoltCircle.Text7\", \"text\": \"X0.0Y1.0\\r\\nX-0.866Y-0.5\\r\\n"
              "X0.866Y-0.5\\r\\n\", \"visible\": true, \"enabled\": true}");
}

}  // namespace
