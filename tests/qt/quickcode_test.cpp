#include <gtest/gtest.h>

#include <QCheckBox>
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
}

}  // namespace
}  // namespace tavrin
