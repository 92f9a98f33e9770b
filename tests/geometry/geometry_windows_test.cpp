#include <gtest/gtest.h>

#include "tests/support/harness.h"

// What the circle, polygon and point windows share: Image shows the picture.
namespace tavrin {
namespace {

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
