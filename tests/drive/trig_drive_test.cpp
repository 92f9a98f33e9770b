#include <gtest/gtest.h>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;
using Session = tavrin::testing::DriveSession;

TEST(DriveTrig, RightTriangleThroughTheChooser) {
    const Session s = Drive(
        "open frmTrigMain\n"
        "click frmTrigMain.Command1\n"
        "select frmTrig.popSides 3\n"
        "show frmTrig.lblSideOne\n"
        "click frmTrig.chkDMS\n"
        "set frmTrig.txtSideOne \"30.3\"\n"
        "set frmTrig.txtSideTwo \"10\"\n"
        "click frmTrig.Command1\n"
        "show frmTrig.field2747\n"
        "show frmTrig.txtSideOne\n"
        "click frmTrig.Command3\n"
        "show frmTrig.field2747\n"
        "show frmTrig.txtSideOne\n"
        "set frmTrig.txtSideOne \"90\"\n"
        "click frmTrig.Command1\n"
        "click frmTrig.Command4\n"
        "show frmTrig\n"
        "show frmTrigMain\n");
    EXPECT_EQ(s.exitCode, 0);
    const QStringList expected{
        R"({"control": "frmTrig.lblSideOne", "caption": "B", "visible": true, "enabled": true})",
        QString::fromUtf8(
            R"({"control": "frmTrig.field2747", "text": "side a=  10\r\nside b=  5.0754\r\n)"
            R"(side c=  8.6163\r\nAngle B= 30°  30'  0\"\r\nAngle C= 59°  30'  0\"\r\n)"
            R"(Angle B=  30.5 Dec. Deg.\r\nAngle C=  59.5 Dec. Deg.\r\nPerimeter=  23.6917\r\n)"
            R"(Area=  21.8656\r\nInscribed CircleØ=  3.6917\r\nCircumscribed CircleØ=  10", )"
            R"("visible": true, "enabled": true})"),
        R"({"control": "frmTrig.txtSideOne", "text": "30.3", "visible": false, "enabled": true})",
        R"({"control": "frmTrig.field2747", "text": "", "visible": false, "enabled": true})",
        R"({"control": "frmTrig.txtSideOne", "text": "30.3", "visible": true, "enabled": true})",
        R"({"event": "message", "title": "Program Message", "text": "Error, Angle equal  or )"
        R"(greater than 90 degrees"})",
        R"({"window": "frmTrig", "open": false})",
        R"({"window": "frmTrigMain", "open": true, "title": "Trigonometry"})",
    };
    EXPECT_EQ(s.lines, expected);
}

}  // namespace
