#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

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

TEST(DriveTrig, ObliqueTriangleWithTwoSolutions) {
    const Session s = Drive(
        "open frmTrigMain\n"
        "click frmTrigMain.Command2\n"
        "set frmOblique.txtO_Side_a \"6\"\n"
        "set frmOblique.txtO_Side_b \"8\"\n"
        "set frmOblique.txtO_Angle_A \"40\"\n"
        "click frmOblique.cmdOblCalc\n"
        "show frmOblique.txtOblAns\n"
        "show frmOblique.cmdOblCalc\n"
        "click frmOblique.cmdOblDone\n"
        "show frmOblique.txtOblAns\n"
        "set frmOblique.txtO_Side_a \"2\"\n"
        "click frmOblique.cmdOblCalc\n"
        "show frmOblique.txtO_Side_a\n"
        "click frmOblique.cmdODone\n"
        "show frmOblique\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 7);
    EXPECT_EQ(s.lines[0],
              R"({"event": "message", "title": "Program Message", "text": "There are two )"
              R"(solutions possible, both will be calculated."})");
    const QJsonObject answer = QJsonDocument::fromJson(s.lines[1].toUtf8()).object();
    EXPECT_EQ(answer["control"].toString(), "frmOblique.txtOblAns");
    EXPECT_TRUE(answer["visible"].toBool());
    EXPECT_EQ(answer["text"].toString(), QString::fromUtf8("Side a=  6\r\n"
                                                           "Side b=  8\r\n"
                                                           "Side c=  9.2198\r\n"
                                                           "Angle A DD=  40\r\n"
                                                           "Angle A DMS=  40°  0'  0\"\r\n"
                                                           "Angle B DD=  58.98697\r\n"
                                                           "Angle B DMS= 58°  59'  13\"\r\n"
                                                           "Angle C DD=  81.01303\r\n"
                                                           "Angle C DMS= 81°  0'  47\"\r\n"
                                                           "Area=  23.7054\r\n"
                                                           "Perimeter=  23.2198\r\n"
                                                           "Inscribed CircleØ=  4.0837\r\n"
                                                           "Circumscribed CircleØ=  9.3343\r\n"
                                                           "\r\n"
                                                           "***Second Solution***\r\n"
                                                           "Side a=  6\r\n"
                                                           "Side b=  8\r\n"
                                                           "Side c=  3.037\r\n"
                                                           "Angle A DD=  40\r\n"
                                                           "Angle A DMS=  40°  0'  0\"\r\n"
                                                           "Angle B DD=  121.013\r\n"
                                                           "Angle B DMS= 121°  0'  47\"\r\n"
                                                           "Angle C=  18.987\r\n"
                                                           "Angle C DMS= 18°  59'  13\"\r\n"
                                                           "Area=  7.8085\r\n"
                                                           "Perimeter=  17.037\r\n"
                                                           "Inscribed CircleØ=  1.8333\r\n"
                                                           "Circumscribed CircleØ=  9.3343"));
    EXPECT_EQ(s.lines[2], R"({"control": "frmOblique.cmdOblCalc", "caption": "Calculate", )"
                          R"("visible": false, "enabled": true})");
    EXPECT_EQ(
        s.lines[3],
        R"({"control": "frmOblique.txtOblAns", "text": "", "visible": false, "enabled": true})");
    EXPECT_EQ(
        s.lines[4],
        R"({"event": "message", "title": "Program Message", "text": "Error, Invalid Input"})");
    EXPECT_EQ(
        s.lines[5],
        R"({"control": "frmOblique.txtO_Side_a", "text": "2", "visible": true, "enabled": true})");
    EXPECT_EQ(s.lines[6], R"({"window": "frmOblique", "open": false})");
}

}  // namespace
