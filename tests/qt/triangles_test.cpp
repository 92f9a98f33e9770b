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

}  // namespace
}  // namespace tavrin
