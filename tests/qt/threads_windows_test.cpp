#include <gtest/gtest.h>

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

TEST(QtThreads, ThreeWireAnswersInItsTwoLineBox) {
    QtHarness h;
    FormView* w = h.open("frmThreeWire");
    ASSERT_NE(w, nullptr);
    auto* find = Find<QComboBox>(w, "popFindThd");
    EXPECT_EQ(find->currentText(), "Pitch Diameter");
    find->setCurrentIndex(0);
    emit find->activated(0);
    QTest::keyClicks(Find<QLineEdit>(w, "txtTPI"), "20");
    QTest::keyClicks(Find<QLineEdit>(w, "txtWireSize"), ".032");
    QTest::keyClicks(Find<QLineEdit>(w, "txtPitchOrOverWire"), ".2175");
    QTest::mouseClick(Find<QPushButton>(w, "Command1"), Qt::LeftButton);
    EXPECT_EQ(Find<QPlainTextEdit>(w, "txtTWans")->toPlainText(),
              "Over Wire=  .2702\n [ 6.8631 mm]");
    EXPECT_EQ(h.app.find("frmThreeWire")->caption("txtMultiThd"), "Pitch Dia.");
    SavePicture(w, "frmThreeWire");
}

}  // namespace
}  // namespace tavrin
