#include <gtest/gtest.h>

#include "tests/support/harness.h"

// What the circle, polygon and point windows share: Clear All and Image.
namespace tavrin {
namespace {

TEST(GeometryWindows, ClearAllEmptiesEveryBox) {
    for (const char* name :
         {"frmCircleData", "frmCirDivided", "frmCircSegments", "frmPolygons", "frmDistTwoPoints",
          "frmMidTwoPoints", "frmArcCenter", "frmIntersect", "frmInclineOfLine"}) {
        testing::ExpectClearAllEmptiesEveryBox(name);
    }
    testing::Harness h;  // the present position goes back to 0, not empty
    Form& f = h.run("frmPolar", {"txtPolarInput1=1", "txtPolarInput2=1", "txtXPolarPresent=1",
                                 "txtYPolarPresent=1", "txtPolarAns=1", "Command2"});
    EXPECT_EQ(f.text("txtPolarInput1") + f.text("txtPolarInput2") + f.text("txtXPolarPresent") +
                  f.text("txtYPolarPresent") + f.text("txtPolarAns"),
              "00");
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
