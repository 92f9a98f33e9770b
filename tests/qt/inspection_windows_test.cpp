#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
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

TEST(QtInspection, BallDropAnswersAndShowsItsPictures) {
    QtHarness h;
    FormView* w = h.open("frmBallDrop");
    ASSERT_NE(w, nullptr);
    QTest::keyClicks(Find<QLineEdit>(w, "txtAngDrop"), "45");
    QTest::keyClicks(Find<QLineEdit>(w, "txtBallDrop"), ".5");
    QTest::keyClicks(Find<QLineEdit>(w, "txtDropOrDia"), ".625");
    QTest::keyClicks(Find<QLineEdit>(w, "txtThruHole"), ".25");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    EXPECT_TRUE(
        Find<QPlainTextEdit>(w, "txtDropAns")->toPlainText().startsWith("Ball Drop=  .2911\n"));
    EXPECT_FALSE(Find<QLineEdit>(w, "txtHoleDepth")->isVisible());
    QApplication::processEvents();
    SavePicture(w, "frmBallDrop");

    QTest::mouseClick(Find<QPushButton>(w, "Command3"), Qt::LeftButton);
    FormView* pictures = h.view("frmBDImage");
    ASSERT_NE(pictures, nullptr);
    const char* names[] = {"imgSC", "imgHoledepth", "imgChamfer", "imgAngDist"};
    for (int i = 0; i < 4; ++i) {
        auto* combo = Find<QComboBox>(pictures, "cboBallView");
        combo->setCurrentIndex(i);
        emit combo->activated(i);
        QApplication::processEvents();
        auto* shown = Find<QLabel>(pictures, names[i]);
        EXPECT_TRUE(shown->isVisible());
        EXPECT_FALSE(shown->pixmap().isNull());
        SavePicture(pictures, QStringLiteral("frmBDImage_%1").arg(i));
    }
}

TEST(QtInspection, MinMaxBall) {
    QtHarness h;
    FormView* w = h.open("frmMinMaxBall");
    ASSERT_NE(w, nullptr);
    QTest::keyClicks(Find<QLineEdit>(w, "txtAngMinMax"), "45");
    QTest::keyClicks(Find<QLineEdit>(w, "txtThruMinMax"), ".25");
    QTest::keyClicks(Find<QLineEdit>(w, "txtSCMinMax"), ".625");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    EXPECT_EQ(Find<QPlainTextEdit>(w, "txtMMans")->toPlainText(),
              "Min.Ball Size=  .3536\nMax.Ball Size=  .8839");
    SavePicture(w, "frmMinMaxBall");
}

}  // namespace
}  // namespace tavrin
