// Every registered window on screen: the pictures it names are built in, it
// opens and closes offscreen, and its picture is saved for people to look at.

#include <gtest/gtest.h>

#include <QApplication>

#include "app/pictures.h"
#include "frame/form_registry.h"
#include "tests/qt/qt_harness.h"

namespace tavrin {
namespace {

using testing::QtHarness;

TEST(QtCatalogue, EveryWindowOpensWithItsPicturesAndCloses) {
    for (const QString& name : RegisteredFormNames()) {
        QtHarness h;
        FormView* view = h.open(name);
        ASSERT_NE(view, nullptr) << name;
        for (const auto& c : h.app.find(name)->controls()) {
            if (!c->picture.isEmpty()) {
                EXPECT_TRUE(PictureExists(c->picture)) << name << "." << c->name;
            }
        }
        testing::SavePicture(view, name);
        if (name != "frmHome") {
            view->close();
            EXPECT_EQ(h.app.find(name), nullptr) << name;
        }
    }
}

// The solver dressed for the one five-field figure, then for a one-field
// figure: the window keeps its place and size.
TEST(QtCatalogue, TheAreaSolverStandsStillAsTheFigureChanges) {
    QtHarness h;
    h.open("form1");
    h.app.userSelect(*h.app.find("form1"), "lstArea", 38);
    FormView* solver = h.view("form2");
    QApplication::processEvents();
    testing::SavePicture(h.view("form1"), "form1-trapezium");
    testing::SavePicture(solver, "form2-trapezium");
    const QRect dressed = solver->geometry();
    h.app.userSelect(*h.app.find("form1"), "lstArea", 7);
    QApplication::processEvents();
    EXPECT_EQ(solver->geometry(), dressed);
    testing::SavePicture(solver, "form2-cube");
}

}  // namespace
}  // namespace tavrin
