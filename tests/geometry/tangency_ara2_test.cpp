#include <gtest/gtest.h>

#include "geometry/tangency_ara2.h"
#include "tests/support/harness.h"

// Figures worked step by step in doubles, apart from the code.
namespace tavrin {
namespace {

TEST(Ara2Solver, Rows) {
    EXPECT_EQ(Ara2Answer(1, 30, 1.5, 45, .25, 4),
              "\r\n@1to@2 Hgt= .9665\r\n@1to@2 Len= 1.674\r\n@2to@3 Hgt= .0335\r\n"
              "@2to@3 Len= .125\r\n@3to@4 Hgt= .0732\r\n@3to@4 Len= .1768\r\n"
              "@4to@5 Hgt= 1.4268\r\n@4to@5 Len= 1.4268\r\nOverAll Len= 3.4026");
    // 180 is no zero divisor in doubles: the tangent is about -3.2E-15
    EXPECT_TRUE(
        Ara2Answer(1, 180, 1.5, 45, .25, 4).contains("\r\n@1to@2 Len=-154746581404481\r\n"));
}

TEST(Ara2, CalculateRows) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"-1", "30", "", "\r\n@1to@2 Hgt=-1.0335\r\n"},  // negative values go through
        {"1", "29.6", "", "\r\n@1to@2 Hgt= .9665\r\n"},  // 29 degrees 60 minutes
        {"1", "-1.6000", "Run-time error '11':\r\n\r\nDivision by zero", "Calculating..."},
        {"0", "30", "Error, Values must be greater than zero.", ""},
        {"1", "x", "Error, Values must be greater than zero.", ""},
    };
    for (const auto& [h1, a1, box, answer] : rows) {
        testing::Harness h;
        h.app.tangencyDms = true;
        Form& f = h.run("frmAra2", {"txtAnsRar2=earlier", QString("txtHgt1Rar2=") + h1,
                                    QString("txtAng1Rar2=") + a1, "txtHgt2Rar2=1.5",
                                    "txtAng2Rar2=45", "txtRadRar2=.25", "Command1"});
        EXPECT_EQ(h.lastBox(), box) << h1 << " " << a1;
        const QString shown = f.text("txtAnsRar2");
        EXPECT_EQ(*answer ? shown.left(QString(answer).size()) : shown, answer) << h1 << " " << a1;
    }
}

TEST(Ara2, ClearAllEmptiesEveryBox) {
    testing::Harness h;
    Form& f = h.run("frmAra2", {"txtHgt1Rar2=1", "txtAng1Rar2=30", "txtHgt2Rar2=1.5",
                                "txtAng2Rar2=45", "txtRadRar2=.25", "Command1", "Command2"});
    QString all;
    for (const char* name :
         {"txtHgt1Rar2", "txtAng1Rar2", "txtHgt2Rar2", "txtAng2Rar2", "txtRadRar2", "txtAnsRar2"}) {
        all += f.text(name);
    }
    EXPECT_EQ(all, "");
}

}  // namespace
}  // namespace tavrin
