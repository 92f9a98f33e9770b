#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::Find;
using testing::QtHarness;
using testing::SavePicture;

TEST(QtSmoke, HomeOpensSfmAndTheWindowAnswers) {
    QtHarness h;
    FormView* home = h.view("frmHome");
    ASSERT_NE(home, nullptr);
    EXPECT_TRUE(home->isVisible());
    EXPECT_EQ(home->windowTitle(), QStringLiteral("Tavrin™"));
    SavePicture(home, "frmHome");

    auto* list = Find<QListWidget>(home, "lstSelection");
    ASSERT_EQ(list->count(), 34);
    QListWidgetItem* item = list->item(20);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    FormView* sfm = h.view("frmSfmToRpm");
    ASSERT_NE(sfm, nullptr);
    EXPECT_TRUE(sfm->isVisible());
    EXPECT_EQ(sfm->windowTitle(), "SFM<-->RPM");

    QTest::keyClicks(Find<QLineEdit>(sfm, "txtSfm"), "300");
    QTest::keyClicks(Find<QLineEdit>(sfm, "txtDia"), "0.5");
    QTest::mouseClick(Find<QPushButton>(sfm, "Command1"), Qt::LeftButton);
    auto* answer = Find<QLineEdit>(sfm, "lblRpm");
    EXPECT_EQ(answer->text(), "Revolutions Per Minute =  2291.8");
    EXPECT_TRUE(answer->isReadOnly());
    EXPECT_EQ(answer->alignment() & Qt::AlignHCenter, Qt::AlignHCenter);
    SavePicture(sfm, "frmSfmToRpm");

    QTest::mouseClick(Find<QRadioButton>(sfm, "optSfm"), Qt::LeftButton);
    EXPECT_FALSE(Find<QRadioButton>(sfm, "optRpm")->isChecked());
    EXPECT_EQ(h.app.find("frmSfmToRpm")->caption("Label2"), "Revolutions Per Minute");

    QTest::mouseClick(Find<QPushButton>(sfm, "Command2"), Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>(sfm, "txtSfm")->text(), "");
    QTest::mouseClick(Find<QPushButton>(sfm, "Command1"), Qt::LeftButton);
    EXPECT_EQ(h.ui.messages, QStringList({"You must fill both data fields."}));

    // A second click on the same row brings the same window forward.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    EXPECT_EQ(h.view("frmSfmToRpm"), sfm);

    sfm->close();
    EXPECT_EQ(h.app.find("frmSfmToRpm"), nullptr);
}

TEST(QtSmoke, OnlyTheUsersOwnMovesInTheListOpenWindows) {
    QtHarness h;
    FormView* home = h.view("frmHome");
    auto* list = Find<QListWidget>(home, "lstSelection");
    home->activateWindow();
    list->setFocus();
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_EQ(h.app.loadedForms().size(), 1u);
    EXPECT_EQ(h.app.find("frmHome")->listIndex("lstSelection"), -1);

    QListWidgetItem* polygons = list->item(19);
    list->scrollToItem(polygons);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(polygons).center());
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(h.app.find("frmHome")->listIndex("lstSelection"), 20);
    EXPECT_NE(h.view("frmSfmToRpm"), nullptr);
}

TEST(QtSmoke, TheHomeWindowStandsAtItsStoredPosition) {
    QtHarness h;
    FormView* home = h.view("frmHome");
    ASSERT_NE(home, nullptr);
    EXPECT_EQ(home->pos().x(), qRound(3420 * home->logicalDpiX() / 1440.0));
    EXPECT_EQ(home->pos().y(), qRound(5000 * home->logicalDpiY() / 1440.0));
}

TEST(QtSmoke, AFatalFailureIsShownAndNothingRunsAfter) {
    QtHarness h;
    h.app.show("frmSfmToRpm");
    FormView* sfm = h.view("frmSfmToRpm");
    ASSERT_NE(sfm, nullptr);
    QTest::keyClicks(Find<QLineEdit>(sfm, "txtSfm"), "300");
    QTest::keyClicks(Find<QLineEdit>(sfm, "txtDia"), "1E400");
    QTest::mouseClick(Find<QPushButton>(sfm, "Command1"), Qt::LeftButton);
    EXPECT_EQ(h.ui.fatals, QStringList({"Run-time error '6':\r\n\r\nOverflow"}));
    EXPECT_TRUE(h.app.ended());
}

}  // namespace
}  // namespace tavrin
