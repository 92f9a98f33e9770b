#include <gtest/gtest.h>

#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code.
namespace tavrin {
namespace {

TEST(RadToRad, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {".5", "2", "1", "C=  .3333\r\nD=  .4714\r\nE=  .6667\r\nF=  .1144\r\nHeight=  .5858"},
        {".5", "2", ".5", "C=  .5\r\nD=  .5\r\nE=  0\r\nF=  0\r\nHeight=  .5"},  // length r1
        // length r2: the pole stepped round, C as it stands
        {".12345", "1", "1", "C=  .87655\r\nD=  0\r\nE=  0\r\nF=  0\r\nHeight=  1"},
        {".5", "2", ".4", "Error, Length cannot be less than radius #1."},
        {".5", "2", "2.1", "Error, Length cannot be greater than radius #2."},
        {"1", "1", "1", "Error, Radius #1 cannot be larger than or equal to radius #2."},
    };
    for (const auto& [r1, r2, l, answer] : rows) {
        testing::Harness h;
        Form& f = h.run("frmRadToRad",
                        {"txtRRans=earlier", QString("txtRR1=") + r1, QString("txtRR2=") + r2,
                         QString("txtRRLength=") + l, "Command1"});
        const QString said = h.lastBox();
        EXPECT_EQ(said.isEmpty() ? f.text("txtRRans") : said, answer) << r1 << " " << l;
        EXPECT_EQ(f.text("txtRRans") == "earlier", !said.isEmpty()) << r1 << " " << l;
    }
}

TEST(RadToRad, ClearAllEmptiesEveryBox) {
    testing::Harness h;
    Form& f =
        h.run("frmRadToRad", {"txtRR1=.5", "txtRR2=2", "txtRRLength=1", "Command1", "Command2"});
    EXPECT_EQ(f.text("txtRR1") + f.text("txtRR2") + f.text("txtRRLength") + f.text("txtRRans"), "");
}

}  // namespace
}  // namespace tavrin
