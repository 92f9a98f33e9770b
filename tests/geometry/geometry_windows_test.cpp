#include <gtest/gtest.h>

#include "frame/form.h"
#include "tests/support/harness.h"

// What the circle, polygon and point windows share: Clear All and Image.
namespace tavrin {
namespace {

TEST(GeometryWindows, ClearAllEmptiesEveryBox) {
    for (const char* name :
         {"frmCircleData", "frmCirDivided", "frmCircSegments", "frmPolygons", "frmDistTwoPoints",
          "frmMidTwoPoints", "frmArcCenter", "frmIntersect", "frmInclineOfLine", "frmPolar"}) {
        testing::Harness h;
        Form& f = h.open(name);
        for (const auto& c : f.controls()) {
            if (c->kind == ControlKind::TextBox) {
                h.set(f, c->name, "1");
            }
        }
        h.click(f, "Command2");
        QString left;
        for (const auto& c : f.controls()) {
            left += c->kind == ControlKind::TextBox ? c->text : QString();
        }
        // the present position goes back to 0, not empty
        EXPECT_EQ(left, QString(name) == "frmPolar" ? "00" : "") << name;
    }
}

TEST(GeometryWindows, ImageShowsThePicture) {
    const std::pair<const char*, const char*> pictures[] = {
        {"frmCircSegments", "frmCircSegImage"}, {"frmDistTwoPoints", "frmDistancetwoPointsView"},
        {"frmMidTwoPoints", "frmMiddleView"},   {"frmArcCenter", "frmThreePointView"},
        {"frmPolar", "frmPolarView"},
    };
    for (const auto& [window, picture] : pictures) {
        testing::Harness h;
        h.run(window, {"Command3"});
        EXPECT_EQ(h.ui.shownWindows.last(), picture);
    }
}

}  // namespace
}  // namespace tavrin
