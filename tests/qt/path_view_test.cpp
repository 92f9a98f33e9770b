// The path window on screen: made by View Path, reused, fitted, zoomed about
// the cursor, gone with its generator.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include "app/path_view.h"
#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::QtHarness;

TEST(QtPathView, ViewPathOpensOneWindowThatFitsZoomsAndGoesWithItsGenerator) {
    QtHarness h;
    h.open("frmThdMill");
    Form& f = *h.app.find("frmThdMill");
    h.app.userType(f, "fld_TM_Answer", "G00 X0.75 Y0 Z0.1\r\nG03 X0.75 Y0 Z-0.5 I-0.75");
    h.app.userClick(f, "cmdViewPath");
    QPointer<PathWindow> window = h.ui.pathOf(f);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), "Thread Milling: Path");
    ASSERT_EQ(window->plots().size(), 2u) << "plan and side";
    QApplication::processEvents();
    testing::SavePicture(window, "frmThdMill-path");

    PathPlotWidget* plan = window->plots()[0];
    const double fitted = plan->scale();
    // The helix's circle, 1.5 across, fills the smaller side of the drawing.
    EXPECT_GT(fitted * 1.5, 0.6 * std::min(plan->width(), plan->height()));
    const QPointF cursor(plan->width() / 3.0, plan->height() / 2.0);
    const QPointF under = plan->toModel(cursor);
    plan->zoomAt(cursor, 240);
    EXPECT_DOUBLE_EQ(plan->scale(), fitted * 1.5625);
    EXPECT_NEAR(plan->toModel(cursor).x(), under.x(), 1e-9) << "the point under the cursor stays";
    EXPECT_NEAR(plan->toModel(cursor).y(), under.y(), 1e-9);
    window->findChild<QPushButton*>("cmdFit")->click();
    EXPECT_DOUBLE_EQ(plan->scale(), fitted);

    h.app.userType(f, "fld_TM_Answer", "G01 X1\r\nG02 X2");
    h.app.userClick(f, "cmdViewPath");
    EXPECT_EQ(h.ui.pathOf(f), window.data()) << "the same window, its drawing renewed";
    const auto* problems = window->findChildren<QLabel*>().back();
    EXPECT_EQ(problems->text(), "Not drawn: Line 2: an arc needs I, J, K or R");

    h.view("frmThdMill")->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window, nullptr);
}

}  // namespace
}  // namespace tavrin
