#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "inspection/dove_tails.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code. Angle
// 30, roll .25.
namespace tavrin {
namespace {

using testing::Harness;

TEST(DoveTailsSolver, EachKind) {
    const std::tuple<DoveTail, double, double, double, const char*> rows[] = {
        {{true, false, false}, 2, 0, 2.683012701892219, "external over rolls"},
        {{false, false, false}, 2.683, 0, 1.9999872981077806, "external sharp corner"},
        {{true, true, false}, 2, 0, 1.3169872981077808, "internal over rolls"},
        {{false, true, false}, 1.317, 0, 2.000012701892219, "internal sharp corner"},
        {{true, false, true}, 2, 0, 2.3415063509461094, "one sided"},
        {{true, false, false}, 2, .1, 2.798482755730144, "riser adds over rolls"},
        {{false, false, false}, 2.683, .1, 2.1154573519457056, "riser subtracts for the corner"},
        {{false, true, true}, 1.317, .1, 1.600771324027147, "internal one sided on a riser"},
    };
    for (const auto& [kind, s, p, out, what] : rows) {
        EXPECT_EQ(DoveTailSolve(kind, s, 30, .25, p).value(), out) << what;
    }
}

TEST(DoveTails, CalculateRows) {
    const char* const fill =
        "Error, Please fill all data fields, only the riser can have a zero "
        "value.";
    const std::pair<QStringList, QString> rows[] = {
        {{}, "|Size Over Rolls=  2.683"},  // four places, not DecPlace
        {{"optSC", "txtSizeRoll=2.683"}, "|Sharp Corner Size=  2"},
        {{"chkDoveID"}, "|Size Over Rolls=  1.317"},
        {{"chkNotConical"}, "|Size Over Rolls=  2.3415"},
        {{"txtAngleRoll=30.3", "chkDMSdove"}, "|Size Over Rolls=  2.6874"},
        {{"txtRiserRoll=-.1"}, "|Size Over Rolls=  2.5675"},
        {{"txtRiserRoll="}, QString(fill) + "|earlier"},
        {{"txtSizeRoll=0"}, QString(fill) + "|earlier"},
        {{"txtAngleRoll="}, QString(fill) + "|earlier"},
        {{"txtRollRoll=-.25"}, QString(fill) + "|earlier"},
        {{"txtRiserRoll=x"}, "Error, Invalid input in data field #4|earlier"},
        {{"txtSizeRoll=1E308", "txtAngleRoll=1E308"},
         "Run-time error '6':\r\n\r\nOverflow|Calculating..."},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        h.app.decPlace = 2;
        Form& f = h.run("frmRoll", {"txtRollAns=earlier", "txtSizeRoll=2", "txtAngleRoll=30",
                                    "txtRollRoll=.25", "txtRiserRoll=0"});
        h.run("frmRoll", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtRollAns"), answer) << steps.join(' ');
    }
}

TEST(DoveTails, OptionsNameTheSizeAndClearAll) {
    Harness h;
    Form& f = h.run("frmRoll", {"optSC"});
    EXPECT_EQ(f.caption("Field2125"), "Size Over Rolls");
    h.run("frmRoll", {"optOverRolls", "txtSizeRoll=1", "txtAngleRoll=2", "txtRollRoll=3",
                      "txtRiserRoll=4", "txtRollAns=5", "Command2"});
    EXPECT_EQ(f.caption("Field2125"), "Sharp Corner Size");
    EXPECT_EQ(f.text("txtSizeRoll") + f.text("txtAngleRoll") + f.text("txtRollRoll") +
                  f.text("txtRiserRoll") + f.text("txtRollAns"),
              "");
}

// The pictures stand beside the test program, as the build puts them.
TEST(DoveHelp, ReadsThePicturesFromTheProgramsFolder) {
    Harness h;
    const QString folder = h.app.programFolder;
    h.run("frmRoll", {"Command3"});
    ASSERT_NE(h.app.find("frmDoveHelp"), nullptr);
    Form& help = *h.app.find("frmDoveHelp");
    EXPECT_EQ(help.control("Image1").picture, folder + "/sc_or.bmp");
    const char* const files[] = {"sc_or.bmp", "id over rolls.bmp", "angle_plane.bmp",
                                 "angle_planeID.bmp", "riser.bmp"};
    for (int i : {4, 3, 2, 1}) {
        h.run("frmDoveHelp", {"popDps#" + QString::number(i)});
        EXPECT_EQ(help.control("Image1").picture, folder + "/" + files[i]);
    }
    EXPECT_EQ(h.lastBox(), "");
}

TEST(DoveHelp, AMissingOrBrokenPictureIsTold) {
    QTemporaryDir dir;
    Harness h;
    for (const QString& name : QDir(h.app.programFolder).entryList({"*.bmp"})) {
        ASSERT_TRUE(QFile::copy(h.app.programFolder + "/" + name, dir.filePath(name)));
    }
    ASSERT_TRUE(QFile::rename(dir.filePath("sc_or.bmp"), dir.filePath("sc_or.bak")));
    QFile broken(dir.filePath("riser.bmp"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("PNG") == 3);
    broken.close();
    h.app.programFolder = dir.path();
    Form& help = h.open("frmDoveHelp");
    EXPECT_EQ(h.lastBox(), "Error, Missing the picture file or the name of it was changed!");
    h.run("frmDoveHelp", {"popDps#2", "popDps#4"});
    EXPECT_EQ(h.lastBox(), "An error has ocuured loading the picture.");
    EXPECT_EQ(help.control("Image1").picture, dir.filePath("angle_plane.bmp"));  // left as it was
    h.run("frmDoveHelp", {"popDps#0"});
    EXPECT_EQ(help.control("Image1").picture, "");
    EXPECT_EQ(h.ui.messageTexts().size(), 3);
}

}  // namespace
}  // namespace tavrin
