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

TEST(DriveQuickCode, AThreadMillingProgramAndItsMessages) {
    const Session s = Drive(
        "open frmThdMill\n"
        "set frmThdMill.fld_TM_ZStart \".1\"\n"
        "set frmThdMill.fld_TM_Depth \".5\"\n"
        "set frmThdMill.fld_TM_Major \"1\"\n"
        "set frmThdMill.fld_TM_ToolDia \".91\"\n"
        "set frmThdMill.fld_TM_Pitch \".0625\"\n"
        "set frmThdMill.fld_TM_Feed \"5\"\n"
        "select frmThdMill.popTM_Thread 1\n"
        "click frmThdMill.Command1\n"
        "select frmThdMill.popTM_Thread 0\n"
        "set frmThdMill.fld_TM_ToolDia \".5\"\n"
        "click frmThdMill.Command1\n"
        "show frmThdMill.fld_TM_Answer\n"
        "show frmThdMill.fld_TM_Xpos\n"
        "set frmThdMill.fld_TM_Depth \"1000\"\n"
        "select frmThdMill.popTM_Tool 1\n"
        "click frmThdMill.Command1\n");
    EXPECT_EQ(s.exitCode, 3);
    ASSERT_EQ(s.lines.size(), 4);
    EXPECT_EQ(s.lines[0],
              "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"Error, Tool "
              "Diameter greater than 90% of Major.\"}");
    EXPECT_EQ(s.lines[1],
              "{\"control\": \"frmThdMill.fld_TM_Answer\", \"text\": \"G00 G90 X0.0 Y0.0\\r\\n"
              "Z0.1\\r\\nG00 G91 X1.0\\r\\nG01 G90 Z-0.35937 F5.0\\r\\nG01 G91 G41 Y0.25\\r\\n"
              "G03 X-0.25 Y-0.25 Z-0.01563 I0.0 J-0.25\\r\\nG02 Z-0.0625 I-0.75\\r\\n"
              "G02 Z-0.0625 I-0.75\\r\\nG03 X0.25 Y-0.25 Z-0.01563 I0.25 J0.0\\r\\n"
              "G01 G40 Y0.25\\r\\nG00 G90 Z0.1\\r\\nX0.0 Y0.0\", \"visible\": true, "
              "\"enabled\": true}");
    EXPECT_EQ(s.lines[2],
              "{\"control\": \"frmThdMill.fld_TM_Xpos\", \"text\": \"0\", \"visible\": true, "
              "\"enabled\": true}");
    EXPECT_EQ(s.lines[3],
              "{\"event\": \"fatal\", \"text\": \"Run-time error '9':\\r\\n\\r\\n"
              "Subscript out of range\"}");
}

}  // namespace
