// Every registered window on screen: the pictures it names are built in, it
// opens and closes offscreen, and its picture is saved for people to look at.

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tavrin
