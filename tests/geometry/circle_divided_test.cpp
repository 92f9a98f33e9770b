#include <gtest/gtest.h>

#include "geometry/circle_divided.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

TEST(CircleDividedSolver, HeadAndLines) {
    EXPECT_EQ(CircleDivisions(0, 4),
              " 90 DD Increments\r\n 90°  0'  0\" DMS Increments\r\n\r\n"
              " 1]  0.000000 ||  0°  0'  0\"\r\n 2]  90.000000 ||  90°  0'  0\"\r\n"
              " 3]  180.000000 ||  180°  0'  0\"\r\n 4]  270.000000 ||  270°  0'  0\"");
    // 308.571426 if the rounded step were added up
    EXPECT_TRUE(CircleDivisions(0, 7).endsWith("\r\n 7]  308.571429 || 308°  34'  17\""));
}

TEST(CircleDivided, HandlerRows) {
    // the box, the answer's last line, then the hint the check shows
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtCirDivAng=22.0300", "txtCirDivPos=1", "chkDMSCirDiv"},
         " 1]  22.050000 || 22°  3'  0\"enter 22° 3' 22\" as 22.0322"},
        {{"txtCirDivPos=4"},
         "Error, Please enter an angle value, any value including 0° is ok to enter."},
        {{"txtCirDivAng=0", "txtCirDivPos=4."},
         "Error, No decimal point allowed for # of positions."},
        {{"txtCirDivAng=0", "txtCirDivPos=abc"},
         "Error, # of positions must be greater than zero."},
        {{"txtCirDivAng=0", "txtCirDivPos=40000"},
         "Run-time error '6':\r\n\r\nOverflowCalculating..."},
    };
    for (const auto& [steps, shown] : rows) {
        testing::Harness h;
        Form& f = h.run("frmCirDivided", steps + QStringList{"Command1"});
        const QString answer = f.text("txtCirDivAns");
        EXPECT_EQ(h.lastBox() + answer.mid(answer.lastIndexOf('\n') + 1) + f.caption("Field2811"),
                  shown)
            << steps.join(' ');
    }
}

}  // namespace
}  // namespace tavrin
