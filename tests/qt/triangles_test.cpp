#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::Find;
using testing::QtHarness;
using testing::SavePicture;

TEST(QtTriangles, RightTriangleSwapsEntryAndAnswer) {
    QtHarness h;
    FormView* chooser = h.open("frmTrigMain");
    ASSERT_NE(chooser, nullptr);
    SavePicture(chooser, "frmTrigMain");
    QTest::mouseClick(Find<QPushButton>(chooser, "Command1"), Qt::LeftButton);
    FormView* trig = h.view("frmTrig");
    ASSERT_NE(trig, nullptr);
    EXPECT_EQ(trig->windowTitle(), "Right Triangle Trigonometry");
    QTest::keyClicks(Find<QLineEdit>(trig, "txtSideOne"), "5");
    QTest::keyClicks(Find<QLineEdit>(trig, "txtSideTwo"), "3");
    EXPECT_FALSE(trig->widget("field2747")->isVisible());
    SavePicture(trig, "frmTrig-entry");

    QTest::mouseClick(Find<QPushButton>(trig, "Command1"), Qt::LeftButton);
    EXPECT_TRUE(h.ui.messages.isEmpty());
    EXPECT_FALSE(trig->widget("txtSideOne")->isVisible());
    EXPECT_FALSE(trig->widget("Command4")->isVisible());
    EXPECT_TRUE(trig->widget("field2747")->isVisible());
    EXPECT_TRUE(h.app.find("frmTrig")->text("field2747").startsWith("side a=  5\r\n"));
    SavePicture(trig, "frmTrig-answer");

    QTest::mouseClick(Find<QPushButton>(trig, "Command3"), Qt::LeftButton);
    EXPECT_TRUE(trig->widget("txtSideOne")->isVisible());
    EXPECT_FALSE(trig->widget("field2747")->isVisible());
    EXPECT_EQ(Find<QLineEdit>(trig, "txtSideOne")->text(), "5");
    QTest::mouseClick(Find<QPushButton>(trig, "Command4"), Qt::LeftButton);
    EXPECT_EQ(h.app.find("frmTrig"), nullptr);
}

TEST(QtTriangles, ObliqueSwapsEntryAndAnswer) {
    QtHarness h;
    FormView* obl = h.open("frmOblique");
    ASSERT_NE(obl, nullptr);
    EXPECT_EQ(obl->windowTitle(), "Oblique Triangle Trigonometry");
    QTest::keyClicks(Find<QLineEdit>(obl, "txtO_Side_a"), "6");
    QTest::keyClicks(Find<QLineEdit>(obl, "txtO_Side_b"), "8");
    QTest::keyClicks(Find<QLineEdit>(obl, "txtO_Angle_A"), "40");
    EXPECT_FALSE(obl->widget("txtOblAns")->isVisible());
    SavePicture(obl, "frmOblique-entry");

    QTest::mouseClick(Find<QPushButton>(obl, "cmdOblCalc"), Qt::LeftButton);
    EXPECT_EQ(h.ui.messages,
              QStringList{"There are two solutions possible, both will be calculated."});
    EXPECT_FALSE(obl->widget("txtO_Side_a")->isVisible());
    EXPECT_FALSE(obl->widget("cmdODone")->isVisible());
    EXPECT_TRUE(obl->widget("txtOblAns")->isVisible());
    EXPECT_TRUE(h.app.find("frmOblique")->text("txtOblAns").contains("***Second Solution***"));
    SavePicture(obl, "frmOblique-answer");

    QTest::mouseClick(Find<QPushButton>(obl, "cmdOblDone"), Qt::LeftButton);
    EXPECT_TRUE(obl->widget("txtO_Side_a")->isVisible());
    EXPECT_FALSE(obl->widget("txtOblAns")->isVisible());
    EXPECT_EQ(Find<QLineEdit>(obl, "txtO_Side_a")->text(), "6");
    QTest::mouseClick(Find<QPushButton>(obl, "cmdODone"), Qt::LeftButton);
    EXPECT_EQ(h.app.find("frmOblique"), nullptr);
}

}  // namespace
}  // namespace tavrin
