// The real windows as a desktop user meets them: the keyboard in a long answer
// box, a window that keeps its size, spin arrows, the home window on screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QToolButton>
#include <memory>

#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::Find;
using testing::QtHarness;

void Type(QtHarness& h, const QString& form, const QStringList& fieldValues) {
    for (const QString& step : fieldValues) {
        h.app.userType(*h.app.find(form), step.section('=', 0, 0), step.section('=', 1));
    }
}

TEST(QtDesktop, TheKeyboardRunsThroughALongReadOnlyAnswerAndCopiesItWhole) {
    QtHarness h;
    FormView* v = h.open("frmBoltCircle");
    Type(h, "frmBoltCircle", {"Text1=10", "Text2=60", "Text3=0", "Text4=0", "Text5=0"});
    h.app.userClick(*h.app.find("frmBoltCircle"), "Command1");
    auto* box = Find<QPlainTextEdit>(v, "Text7");
    ASSERT_TRUE(box->isReadOnly());
    QScrollBar* bar = box->verticalScrollBar();
    QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(box->textCursor().atEnd());
    // The list ends in a line end: its last hole stands on the line before.
    const QTextBlock last = box->document()->lastBlock().previous();
    EXPECT_TRUE(last.text().startsWith(" 60] X4.9726Y-0.5226")) << last.text();
    const QRect line = box->cursorRect(QTextCursor(last));
    EXPECT_TRUE(bar->value() > 0 && box->viewport()->rect().contains(line)) << "the last line seen";
    QTest::keyClick(box, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(bar->value(), 0);
    QTest::keyClick(box, Qt::Key_PageDown);
    const int down = bar->value();
    QTest::keyClick(box, Qt::Key_PageUp);
    EXPECT_TRUE(down > 0 && bar->value() == 0) << down;
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), box->toPlainText()) << "the whole list copied";
}

TEST(QtDesktop, TheRightTriangleKeepsItsSizeBetweenItsEntryAndAnswerLayouts) {
    QtHarness h;
    FormView* v = h.open("frmTrig");
    const QSize entry = v->size();
    Type(h, "frmTrig", {"txtSideOne=5", "txtSideTwo=3"});
    h.app.userClick(*h.app.find("frmTrig"), "Command1");
    QApplication::processEvents();
    EXPECT_EQ(v->size(), entry) << "room for the answer from the start";
    testing::SavePicture(v, "frmTrig-answer");
    h.app.userClick(*h.app.find("frmTrig"), "Command3");
    QApplication::processEvents();
    EXPECT_EQ(v->size(), entry) << "back at the entry, it does not shrink";
    EXPECT_EQ(v->minimumSize(), v->maximumSize()) << "and the user cannot resize it";
}

TEST(QtDesktop, SpinArrowsStandAgainstTheirBox) {
    QtHarness h;
    FormView* v = h.open("frmSettings");
    QWidget* box = v->widget("Text1");
    auto* up = v->findChild<QToolButton*>("UpDown1Up");
    auto* down = v->findChild<QToolButton*>("UpDown1Down");
    const QPoint boxRight = box->mapTo(v, QPoint(box->width(), 0));
    EXPECT_EQ(up->mapTo(v, QPoint(0, 0)), boxRight);
    EXPECT_EQ(up->height() + down->height(), box->height() / 2 * 2);
}

TEST(QtDesktop, TheHomeWindowIsMovedJustEnoughToStandOnTheScreen) {
    testing::InterceptingUi ui;
    MemorySettings settings;
    settings.save("Xpos", "Xpos", "30000");  // beyond the right and the bottom edge
    settings.save("Ypos", "Ypos", "20000");
    App app(ui, settings);
    ui.setApp(&app);
    app.splashEnabled = false;
    app.start();
    const Form& form = *app.find("frmHome");
    std::unique_ptr<FormView> home(ui.viewOf(form));
    const QRect area = home->screen()->availableGeometry();
    EXPECT_EQ(home->frameGeometry().bottomRight(), area.bottomRight());
    EXPECT_EQ(QPointF(form.left(), form.top()),
              QPointF(home->pos().x() * 1440.0 / home->logicalDpiX(),
                      home->pos().y() * 1440.0 / home->logicalDpiY()))
        << "the place it has is the one stored on closing";
}

}  // namespace
}  // namespace tavrin
