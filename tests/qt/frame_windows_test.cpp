#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::Find;
using testing::QtHarness;
using testing::SavePicture;

TEST(QtFrameWindows, DdToDmsConvertsAndSwapsItsHint) {
    QtHarness h;
    FormView* w = h.open("frmDDtoDMS");
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "DD<-->DMS");
    QTest::keyClicks(Find<QLineEdit>(w, "txtDD1"), "22.056111");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    auto* answer = Find<QLineEdit>(w, "txtDDans");
    EXPECT_EQ(answer->text(), "DMS= 22°  3'  22\"");
    EXPECT_TRUE(answer->isReadOnly());
    EXPECT_EQ(answer->focusPolicy(), Qt::ClickFocus);

    QTest::mouseClick(Find<QRadioButton>(w, "optDD"), Qt::LeftButton);
    EXPECT_FALSE(Find<QRadioButton>(w, "optDMS")->isChecked());
    EXPECT_EQ(Find<QLabel>(w, "Label1242")->text(), "Deg. Min. Sec.");
    EXPECT_EQ(Find<QLabel>(w, "field1262")->text(), "      enter 22° 3' 22\" as 22.0322");
    EXPECT_EQ(answer->text(), "");
    Find<QLineEdit>(w, "txtDD1")->clear();
    QTest::keyClicks(Find<QLineEdit>(w, "txtDD1"), "22.0322");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    EXPECT_EQ(answer->text(), "DD=  22.056111");
    QCoreApplication::processEvents();  // the window grows to the hint
    EXPECT_TRUE(Find<QLabel>(w, "field1262")->isVisible());
    EXPECT_GE(w->width(), Find<QLabel>(w, "field1262")->sizeHint().width());
    SavePicture(w, "frmDDtoDMS");

    QTest::mouseClick(Find<QPushButton>(w, "Command2"), Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>(w, "txtDD1")->text(), "");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    EXPECT_EQ(h.ui.messages, QStringList({"Error, Please enter data."}));
}

TEST(QtFrameWindows, SettingsChangeTheQuickLauncherAtOnce) {
    QtHarness h;
    FormView* home = h.view("frmHome");
    ASSERT_NE(home, nullptr);
    h.app.guarded([&] { h.app.userClick(*h.app.find("frmHome"), "mnuSettings"); });
    FormView* w = h.view("frmSettings");
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Settings");
    auto* places = Find<QLineEdit>(w, "Text1");
    EXPECT_EQ(places->text(), "4");
    QTest::mouseClick(w->findChild<QToolButton*>("UpDown1Up"), Qt::LeftButton);
    QTest::mouseClick(w->findChild<QToolButton*>("UpDown1Up"), Qt::LeftButton);
    QTest::mouseClick(w->findChild<QToolButton*>("UpDown1Up"), Qt::LeftButton);
    EXPECT_EQ(places->text(), "6");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    EXPECT_EQ(h.app.decPlace, 6);
    EXPECT_EQ(h.settings.get("Reg", "DecPlace", "?"), "6");

    auto* list = Find<QListWidget>(w, "lstSelection");
    ASSERT_EQ(list->count(), 34);
    EXPECT_EQ(list->currentRow(), 0);
    QListWidgetItem* item = list->item(22);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    QTest::mouseClick(w->findChild<QToolButton*>("UpDown2Up"), Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>(w, "Text2")->text(), "2");
    SavePicture(w, "frmSettings");
    QTest::mouseClick(Find<QPushButton>(w, "Command2"), Qt::LeftButton);
    EXPECT_EQ(h.ui.messages,
              QStringList({"OK Quick Launcher Item # 2 is now set to launch \r\nSine Plate"}));
    auto* combo = Find<QComboBox>(home, "Combo1");
    ASSERT_EQ(combo->count(), 4);
    EXPECT_EQ(combo->itemText(1), "Sine Plate");
    EXPECT_EQ(combo->currentText(), "Quick Launcher");
}

TEST(QtFrameWindows, AboutAndDisclaimer) {
    QtHarness h;
    FormView* about = h.open("frmAbout");
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->windowTitle(), QStringLiteral("About Tavrin™"));
    EXPECT_EQ(Find<QLabel>(about, "lblTitle")->text(), QStringLiteral("Tavrin™ v4.0"));
    EXPECT_FALSE(Find<QLabel>(about, "txtCompany")->text().isEmpty());
    EXPECT_FALSE(Find<QLabel>(about, "Image1")->pixmap().isNull());
    SavePicture(about, "frmAbout");
    QTest::mouseClick(Find<QPushButton>(about, "cmdOK"), Qt::LeftButton);
    EXPECT_EQ(h.app.find("frmAbout"), nullptr);

    FormView* terms = h.open("frmDisclaimer");
    ASSERT_NE(terms, nullptr);
    auto* box = Find<QPlainTextEdit>(terms, "Text1");
    EXPECT_TRUE(box->isReadOnly());
    EXPECT_EQ(box->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_TRUE(box->toPlainText().startsWith("This software is distributed as is.\n"));
    SavePicture(terms, "frmDisclaimer");
}

}  // namespace
}  // namespace tavrin
