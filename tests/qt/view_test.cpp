// The view alone: on a window declared here with a control of each kind, the
// widgets follow the logic, the user's actions reach it, rows, tab order and
// keys; on the real windows, where they stand, and the boxes.

#include <gtest/gtest.h>

#include <functional>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "app/pictures.h"
#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::Find;
using testing::QtHarness;

// Declared out of their places, so that neither the rows nor the tab order
// can follow the declaration. Each Click is logged with the list's text.
struct Sample {
    QtHarness h;
    Form f{h.app, "frmSample"};
    QStringList log;
    int ticks = 0;
    std::unique_ptr<FormView> view;
    Sample() {
        f.addAnswerBox("txtAns", 2, ScrollBars::Both);
        f.addButton("Command1", "Go").picture = "home";
        f.addAnswerLine("lblAns").tabStop = false;
        f.add(ControlKind::ListBox, "lstPick").items = QStringList{"p", "q", "r"};
        f.add(ControlKind::Combo, "cboEdit").items = QStringList{"x", "y"};
        f.add(ControlKind::Frame, "Frame1");
        f.addOption("Frame1", "optOne", "One", true);
        f.addOption("Frame1", "optTwo", "Two");
        f.addCheck("Frame1", "chkThree", "Three");
        f.addTextBox("txtNotes").multiLine = true;
        f.addTextBox("txtN");
        Control& spin = f.add(ControlKind::Spin, "UpDown");
        spin.buddy = "txtN", spin.minimum = 1, spin.maximum = 9;
        f.addLabel("lblLonger", "A much longer caption").centred = true;
        f.addTextBox("txtB");
        f.addLabel("lblA", "A");
        f.addTextBox("txtA");
        f.addImage("Image1", "home");
        f.addLabel("lblOff", "drawn by no row");
        f.add(ControlKind::Menu, "mnuFile", "File");
        f.add(ControlKind::MenuItem, "mnuGo", "Go").container = "mnuFile";
        f.add(ControlKind::Timer, "Timer1").interval = 1;
        f.addRow(RowKind::Fields, {"lblA", "txtA"});
        f.addRow(RowKind::Fields, {"lblLonger", "txtB"});
        f.addRow(RowKind::Group, {"Frame1", "optOne", "optTwo", "chkThree"});
        f.addRow(RowKind::Line, {"cboEdit", "lstPick", "txtNotes"});
        f.addRow(RowKind::Fields, {"txtN", "UpDown"});
        f.addRow(RowKind::Line, {"txtAns", "lblAns"});
        f.addRow(RowKind::Buttons, {"Command1"});
        f.setSide("Image1");
        f.setOffLayout({"lblOff"});
        for (const QString name :
             {"Command1", "mnuGo", "lstPick", "cboEdit", "optTwo", "chkThree"}) {
            f.onClick(name, [this, name](Form&) { log << name + "#" + f.listText(name); });
        }
        f.on("Timer1", Event::Timer, [this](Form&) { ++ticks; });
        view = std::make_unique<FormView>(h.app, f, nullptr);
        view->show();
    }
    QAbstractButton* button(const QString& name) { return Find<QAbstractButton>(view.get(), name); }
};

TEST(QtView, WidgetsFollowEveryChangeOfTheLogic) {
    Sample s;
    FormView* v = s.view.get();
    EXPECT_TRUE(v->findChildren<QRadioButton*>().size() == 2 && v->widget("lblOff") == nullptr &&
                s.button("optOne")->isChecked() &&
                s.button("optOne")->parentWidget() == v->widget("Frame1"))
        << "options are made once, in their frame";
    EXPECT_TRUE(s.button("Command1")->text() == "Go" && !s.button("Command1")->icon().isNull());
    auto* line = Find<QLineEdit>(v, "lblAns");
    EXPECT_TRUE(line->isReadOnly() && line->alignment() == Qt::AlignCenter &&
                line->focusPolicy() == Qt::ClickFocus &&
                Find<QLabel>(v, "lblLonger")->alignment() == Qt::AlignCenter);
    auto* answer = Find<QPlainTextEdit>(v, "txtAns");
    EXPECT_TRUE(answer->isReadOnly() && answer->lineWrapMode() == QPlainTextEdit::NoWrap &&
                answer->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOn);
    auto* notes = Find<QPlainTextEdit>(v, "txtNotes");
    EXPECT_TRUE(!notes->isReadOnly() && notes->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff);
    Form& f = s.f;
    f.setTitle("Retitled");
    f.setCaption("lblA", QString("A caption longer than any the window was made for ").repeated(3));
    f.setText("txtA", "a text longer than its box, shown from its start");
    f.setText("txtAns", "1\r\n2");
    f.setText("txtNotes", "bare\nline");
    f.setValue("optTwo", true);
    f.setValue("chkThree", true);
    f.setCaption("Frame1", "Chosen");
    f.addItem("cboEdit", "z");
    f.setListIndex("cboEdit", 2);
    f.removeItem("lstPick", 0);
    f.setListIndex("lstPick", 1);
    f.setVisible("txtB", false);
    f.setEnabled("Command1", false);
    f.setCaption("mnuGo", "Run");
    f.setEnabled("mnuGo", false);
    f.setVisible("mnuFile", false);
    f.setPicture("Image1", "settings");
    QApplication::processEvents();
    auto* combo = Find<QComboBox>(v, "cboEdit");
    auto* list = Find<QListWidget>(v, "lstPick");
    EXPECT_EQ(
        QStringList({v->windowTitle(), Find<QLabel>(v, "lblA")->text(), answer->toPlainText(),
                     Find<QGroupBox>(v, "Frame1")->title(), combo->currentText(),
                     list->currentItem()->text(), f.text("txtNotes")}),
        QStringList({"Retitled", f.caption("lblA"), "1\n2", "Chosen", "z", "r", "bare\nline"}))
        << "what the logic writes is not typed back";
    EXPECT_GE(Find<QLabel>(v, "lblA")->width(), Find<QLabel>(v, "lblA")->sizeHint().width())
        << "the window grows to show it whole";
    auto* edit = Find<QLineEdit>(v, "txtA");
    EXPECT_TRUE(edit->text() == f.text("txtA") && edit->cursorPosition() == 0) << "from its start";
    EXPECT_TRUE(!s.button("optOne")->isChecked() && s.button("optTwo")->isChecked() &&
                s.button("chkThree")->isChecked() && combo->count() == 3 && list->count() == 2);
    EXPECT_FALSE(v->widget("txtB")->isVisible() || s.button("Command1")->isEnabled());
    QAction* go = v->action("mnuGo");
    EXPECT_TRUE(go->text() == "Run" && !go->isEnabled() && !v->action("mnuFile")->isVisible());
    EXPECT_TRUE(Find<QLabel>(v, "Image1")->pixmap().toImage() == LoadPicture("settings").toImage());
}

TEST(QtView, ColumnsTabOrderAndTheUsersOwnActionsReachTheLogic) {
    Sample s;
    FormView* v = s.view.get();
    QApplication::processEvents();
    EXPECT_EQ(v->widget("lblA")->x(), v->widget("lblLonger")->x());
    EXPECT_EQ(v->widget("txtA")->x(), v->widget("txtB")->x());
    EXPECT_GT(v->widget("txtA")->x(), v->widget("lblLonger")->geometry().right());
    EXPECT_GT(v->widget("Image1")->x(), v->widget("txtAns")->geometry().right()) << "the side";
    int above = v->findChild<QMenuBar*>()->geometry().bottom();
    for (const char* name :
         {"lblA", "lblLonger", "Frame1", "lstPick", "txtN", "txtAns", "Command1"}) {
        EXPECT_GT(v->widget(name)->y(), above) << name << " stands below the row above";
        above = v->widget(name)->y();
    }
    v->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(v));
    v->widget("txtA")->setFocus();
    QStringList order;
    for (int i = 0; i < 13; ++i) {
        QWidget* focus = QApplication::focusWidget();
        for (const auto& c : s.f.controls()) {
            QWidget* w = v->widget(c->name);
            if (w == focus ||
                (w != nullptr && c->kind == ControlKind::Spin && w->isAncestorOf(focus))) {
                order << c->name;
            }
        }
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              QStringList({"txtA", "txtB", "txtNotes", "txtN", "optOne", "optTwo", "chkThree",
                           "cboEdit", "lstPick", "UpDown", "UpDown", "Command1", "txtAns"}));
    auto* list = Find<QListWidget>(v, "lstPick");
    QApplication::processEvents();
    EXPECT_TRUE(s.log.isEmpty() && list->currentRow() == -1) << "the focus passing chose nothing";
    QTest::keyClick(list, Qt::Key_Down);
    QApplication::processEvents();
    const QPoint q = list->visualItemRect(list->item(1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, q);
    EXPECT_EQ(s.log, QStringList({"lstPick#p", "lstPick#q"})) << "one click, one Click";
    QApplication::processEvents();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, q);
    QApplication::processEvents();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(s.log, QStringList({"lstPick#p", "lstPick#q", "lstPick#q", "lstPick#r"}));
    s.log.clear();
    QTest::keyClicks(Find<QLineEdit>(v, "txtA"), "12");
    QTest::keyClicks(Find<QPlainTextEdit>(v, "txtNotes"), "a\rb");
    auto* combo = Find<QComboBox>(v, "cboEdit");
    QTest::keyClicks(combo->lineEdit(), "w");
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(QStringList({s.f.text("txtA"), s.f.text("txtNotes"), s.f.text("cboEdit"),
                           combo->currentText(), QString::number(combo->count())}),
              QStringList({"12", "a\r\nb", "w", "w", "2"}))
        << "lines go back as CR LF";
    QTest::keyClick(combo, Qt::Key_Down);
    // An option clicked when on stays on, which Qt alone would turn off.
    for (const char* name : {"optOne", "optTwo", "optTwo", "chkThree", "chkThree", "Command1"}) {
        QTest::mouseClick(s.button(name), Qt::LeftButton);
    }
    EXPECT_TRUE(!s.button("optOne")->isChecked() && s.button("optTwo")->isChecked());
    for (const char* arrow : {"UpDownUp", "UpDownUp", "UpDownDown"}) {
        QTest::mouseClick(v->findChild<QToolButton*>(arrow), Qt::LeftButton);
    }
    EXPECT_EQ(Find<QLineEdit>(v, "txtN")->text(), "2") << "from 1 two up, one down";
    v->action("mnuGo")->trigger();
    EXPECT_EQ(s.log, QStringList({"cboEdit#x", "optTwo#", "chkThree#", "chkThree#", "Command1#",
                                  "mnuGo#"}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return s.ticks > 0; })) << "timers run";
}

TEST(QtWindows, HomeStandsAtItsStoredPlaceAndTheOthersBesideIt) {
    QtHarness h;
    FormView* home = h.view("frmHome");
    const Form& form = *h.app.find("frmHome");
    EXPECT_EQ(home->windowTitle(), form.title());
    EXPECT_EQ(home->pos(), QPoint(qRound(3420 * home->logicalDpiX() / 1440.0),
                                  qRound(5000 * home->logicalDpiY() / 1440.0)));
    EXPECT_EQ(form.top(), 5000) << "showing it leaves the stored twips as they were";
    FormView* sfm = h.open("frmSfmToRpm");
    EXPECT_EQ(h.open("frmSfmToRpm"), sfm) << "one view a window";
    EXPECT_EQ(sfm->parentWidget(), home) << "not a window of its own in the task bar";
    const QRect area = sfm->screen()->availableGeometry();
    EXPECT_LE((sfm->frameGeometry().center() - area.center()).manhattanLength(), 10) << "centred";
    const QPointer<FormView> closed = sfm;
    sfm->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(closed.isNull()) << "an unloaded window's view goes with it";
    home->move(home->logicalDpiX() * 23, home->logicalDpiY());  // 33120 and 1440 twips
    EXPECT_TRUE(form.left() == 33120 && form.top() == 1440);
    home->close();
    EXPECT_TRUE(home->isVisible()) << "its place overflowed on closing: the logic kept it";
}

// Presses a button of the next box when it comes, and keeps its title and text.
void AnswerNextBox(QString& seen, QMessageBox::StandardButton button) {
    QTimer::singleShot(0, [&seen, button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = box->windowTitle() + "|" + box->text();
        box->button(button)->click();
    });
}

TEST(QtWindows, TheRealBoxesShowLinesTellTheAnswerAndAFatalOneEndsTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // Qt runs threads of its own
    QtUi ui;
    QString seen;
    AnswerNextBox(seen, QMessageBox::Ok);
    ui.message("Program Message", "one\r\ntwo");
    EXPECT_EQ(seen, "Program Message|one\ntwo");
    AnswerNextBox(seen, QMessageBox::Yes);
    EXPECT_TRUE(ui.question("Asked", "go on?"));
    EXPECT_EXIT((AnswerNextBox(seen, QMessageBox::Ok), ui.fatal("Tavrin", "the end")),
                ::testing::ExitedWithCode(3), "");
}

// A modal window holds the caller until Next Point hides it, once a point.
TEST(QtWindows, AModalWindowWaitsForItsOwnButton) {
    QtHarness h;
    FormView* rotate = h.open("frmRotate");
    QStringList seen;
    std::function<void()> answer = [&] {
        auto* v = qobject_cast<FormView*>(QApplication::activeModalWidget());
        ASSERT_NE(v, nullptr);
        seen << Find<QLabel>(v, "lblPointNum")->text();
        if (seen.size() < 2) {
            QTimer::singleShot(0, answer);
        }
        Find<QAbstractButton>(v, "Command1")->click();
    };
    QTimer::singleShot(0, answer);
    h.app.userType(*h.app.find("frmRotate"), "cboPoints", "2");
    Find<QAbstractButton>(rotate, "Command1")->click();
    EXPECT_EQ(seen, QStringList({"Point # 1", "Point # 2"}));
}

}  // namespace
}  // namespace tavrin
