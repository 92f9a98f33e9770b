#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;
using Session = tavrin::testing::DriveSession;

TEST(DriveFrameWindows, ConvertsAnglesBothWays) {
    const Session s = Drive(
        "select frmHome.lstSelection 7\n"
        "set frmDDtoDMS.txtDD1 \"22.056111\"\n"
        "click frmDDtoDMS.Command1\n"
        "show frmDDtoDMS.txtDDans\n"
        "click frmDDtoDMS.optDD\n"
        "show frmDDtoDMS.field1262\n"
        "set frmDDtoDMS.txtDD1 \"22.032\"\n"
        "click frmDDtoDMS.Command1\n"
        "show frmDDtoDMS.txtDDans\n"
        "set frmDDtoDMS.txtDD1 \"abc\"\n"
        "click frmDDtoDMS.Command1\n"
        "click frmDDtoDMS.Command2\n"
        "show frmDDtoDMS.txtDD1\n");
    EXPECT_EQ(s.exitCode, 0);
    EXPECT_EQ(s.lines,
              QStringList({
                  "{\"control\": \"frmDDtoDMS.txtDDans\", \"text\": \"DMS= 22°  3'  22\\\"\", "
                  "\"visible\": true, \"enabled\": true}",
                  "{\"control\": \"frmDDtoDMS.field1262\", \"caption\": \"      enter 22° 3' "
                  "22\\\" as 22.0322\", \"visible\": true, \"enabled\": true}",
                  "{\"control\": \"frmDDtoDMS.txtDDans\", \"text\": \"DD=  22.055556\", "
                  "\"visible\": true, \"enabled\": true}",
                  "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"Value "
                  "must be greater than zero.\"}",
                  "{\"control\": \"frmDDtoDMS.txtDD1\", \"text\": \"\", \"visible\": true, "
                  "\"enabled\": true}",
              }));
}

TEST(DriveFrameWindows, SettingsReachTheHomeWindowAndTheFile) {
    QTemporaryDir dir;
    const QString ini = dir.filePath("tavrin.ini");
    const Session first = Drive(
        "click frmHome.mnuSettings\n"
        "spin frmSettings.UpDown1 up\n"
        "spin frmSettings.UpDown1 up\n"
        "spin frmSettings.UpDown1 up\n"
        "click frmSettings.Command1\n"
        "spin frmSettings.UpDown2 up\n"
        "select frmSettings.lstSelection 22\n"
        "click frmSettings.Command2\n"
        "show frmHome.Combo1\n"
        "close frmHome\n",
        {"--settings", ini});
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(first.lines,
              QStringList({
                  "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"OK "
                  "Quick Launcher Item # 2 is now set to launch \\r\\nSine Plate\"}",
                  "{\"control\": \"frmHome.Combo1\", \"text\": \"Quick Launcher\", \"visible\": "
                  "true, \"enabled\": true, \"index\": -1, \"items\": [\"Circle Segments\","
                  "\"Sine Plate\",\"Trigonometry (Right and Oblique)\",\"Polygons\"]}",
                  "{\"event\": \"end\"}",
              }));
    // A restart reads both back.
    const Session second = Drive(
        "click frmHome.mnuSettings\n"
        "show frmSettings.Text1\n"
        "show frmHome.Combo1\n",
        {"--settings", ini});
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.lines,
              QStringList({
                  "{\"control\": \"frmSettings.Text1\", \"text\": \"6\", \"visible\": true, "
                  "\"enabled\": true}",
                  first.lines[1],
              }));
}

TEST(DriveFrameWindows, AboutSaysWhenNoSystemInformationToolStarts) {
    const Session s = Drive(
        "click frmHome.mnuAbout\n"
        "click frmAbout.cmdSysInfo\n"
        "click frmAbout.cmdOK\n"
        "show frmAbout\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 2);
    EXPECT_EQ(s.lines[0],
              "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"System "
              "Information Is Unavailable At This Time\"}");
    EXPECT_EQ(s.lines[1], "{\"window\": \"frmAbout\", \"open\": false}");
}

}  // namespace
