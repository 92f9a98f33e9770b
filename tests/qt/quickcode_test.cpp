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

TEST(QtQuickCode, TheHubOpensTheBoltCircleWhichListsItsHoles) {
    QtHarness h;
    QTest::mouseClick(Find<QPushButton>(h.view("frmHome"), "Command4"), Qt::LeftButton);
    FormView* hub = h.view("frmQuickCode");
    ASSERT_NE(hub, nullptr);
    EXPECT_EQ(hub->windowTitle(), "Quick Code");
    SavePicture(hub, "frmQuickCode");

    QTest::mouseClick(Find<QPushButton>(hub, "Command1"), Qt::LeftButton);
    FormView* bolt = h.view("frmBoltCircle");
    ASSERT_NE(bolt, nullptr);
    EXPECT_EQ(bolt->windowTitle(), "Bolt Circle");
    QTest::keyClicks(Find<QLineEdit>(bolt, "Text1"), "2");
    QTest::keyClicks(Find<QLineEdit>(bolt, "Text2"), "6");
    QTest::keyClicks(Find<QLineEdit>(bolt, "Text3"), "1.5");
    QTest::keyClicks(Find<QLineEdit>(bolt, "Text4"), "-2");
    QTest::keyClicks(Find<QLineEdit>(bolt, "Text5"), "90");
    QTest::mouseClick(Find<QPushButton>(bolt, "Command1"), Qt::LeftButton);
    auto* answer = Find<QPlainTextEdit>(bolt, "Text7");
    EXPECT_TRUE(answer->isReadOnly());
    EXPECT_EQ(answer->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_TRUE(answer->toPlainText().startsWith(" 1] X1.5Y-1.0\n 2] X0.634Y-1.5\n"))
        << answer->toPlainText().toStdString();
    EXPECT_TRUE(h.ui.messages.isEmpty());
    SavePicture(bolt, "frmBoltCircle");

    QTest::mouseClick(Find<QCheckBox>(bolt, "chkNoNumbers"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>(bolt, "Command1"), Qt::LeftButton);
    EXPECT_TRUE(answer->toPlainText().startsWith("X1.5Y-1.0\n"))
        << answer->toPlainText().toStdString();

    // The whole program copies from the keyboard: select all, then copy.
    answer->setFocus();
    QTest::keyClick(answer, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(answer->textCursor().selectedText().size(), answer->toPlainText().size());
}

TEST(QtQuickCode, ThreadMillingWritesASinglePointProgram) {
    QtHarness h;
    h.open("frmQuickCode");
    QTest::mouseClick(Find<QPushButton>(h.view("frmQuickCode"), "Command3"), Qt::LeftButton);
    FormView* thd = h.view("frmThdMill");
    ASSERT_NE(thd, nullptr);
    EXPECT_EQ(thd->windowTitle(), "Thread Milling");
    auto* tool = Find<QComboBox>(thd, "popTM_Tool");
    EXPECT_EQ(tool->currentText(), "Hob-Mill");
    QTest::keyClicks(Find<QLineEdit>(thd, "fld_TM_ZStart"), ".1");
    QTest::keyClicks(Find<QLineEdit>(thd, "fld_TM_Depth"), ".5");
    QTest::keyClicks(Find<QLineEdit>(thd, "fld_TM_Major"), "1");
    QTest::keyClicks(Find<QLineEdit>(thd, "fld_TM_ToolDia"), ".5");
    QTest::keyClicks(Find<QLineEdit>(thd, "fld_TM_Pitch"), ".125");
    QTest::keyClicks(Find<QLineEdit>(thd, "fld_TM_Feed"), "5");
    h.app.userSelect(*h.app.find("frmThdMill"), "popTM_Tool", 1);
    EXPECT_EQ(tool->currentText(), "Single Pt.");
    QTest::mouseClick(Find<QCheckBox>(thd, "Checkbox1208"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>(thd, "Command1"), Qt::LeftButton);
    EXPECT_TRUE(h.ui.messages.isEmpty()) << h.ui.messages.join('|').toStdString();
    EXPECT_EQ(Find<QLineEdit>(thd, "fld_TM_Xpos")->text(), "0");
    auto* answer = Find<QPlainTextEdit>(thd, "fld_TM_Answer");
    const QStringList lines = answer->toPlainText().split('\n');
    ASSERT_EQ(lines.size(), 15);
    EXPECT_EQ(lines[3], "N25 G01 G90 Z0.15625 F5.0");
    EXPECT_EQ(lines[14], "N80 X0.0 Y0.0");
    SavePicture(thd, "frmThdMill");
}

}  // namespace
}  // namespace tavrin
