// The inspection bench windows; figures worked in doubles apart from the code.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "inspection/ball_sub.h"
#include "inspection/two_ball.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

const QString kHint = QStringLiteral("enter 22° 3' 22\" as 22.0322");

TEST(BenchSolvers, BallSubstitution) {
    const std::tuple<double, double, int, int, const char*> rows[] = {
        {29, .3, 2, 2, " .38\r\nNew Distance=  .68"},
        {30, 0, 2, 4, " .375\r\nNew Distance= No distance entered."},
        {30, .3, 0, 4, " .375\r\nNew Distance= "},  // a typed mode: no distance
    };
    for (const auto& [a, d, mode, places, tail] : rows) {
        EXPECT_TRUE(BallSubstitute(.25, .5, a, d, mode, places).endsWith(tail)) << tail;
    }
}

TEST(BenchSolvers, TwoBalls) {
    EXPECT_EQ(BallToBallAnswer(.25, .5, 1),
              "DD=  8.213211\r\nDMS= 8°  12'  48\"\r\nIncluded Angle DD=  16.426421\r\n"
              "Included Angle DMS= 16°  25'  35\"");
    EXPECT_EQ(FaceToBallAnswer(.25, .5, -.1, .2),
              "Angle per Side DD=  45.584691\r\nAngle per Side DMS= 45°  35'  5\"\r\n"
              "Sharp Corner Dia.=  .8165\r\nIncluded Angle DD=  91.169383\r\n"
              "Included Angle DMS= 91°  10'  10\"");
    EXPECT_EQ(BallToBallAnswer(.25, .75, .1), "Invalid Input");  // below -1
}

struct Window {
    const char* form;
    const char* answer;
    QString fill;  // "txtA=1 txtB=2"
};
const Window kSine{"frmSinePlate", "GageBlock", "SinePlateLength=5 AngleIncline=30"};
const Window kTruePos{"frmTruePos", "txtTPosAns", "txtXpos=.003 txtYpos=.004"};
const Window kPin{"frmPinInaDiamond", "txtDiamondAns", "txtDiamond1=1 txtDiamond2=1"};
const Window kSub{"frmBallSub", "txtBallSubAns",
                  "txtSmBall=.25 txtLaBall=.5 txtAngBall=30 txtDistance=.3"};
const Window kTaper{"frmTapers", "txtTaperAns", "txt1=.5 txt2=.625 txt3=4"};
const Window kB2B{"frmBallToBall", "txtBBans", "txtSB2=.25 txtLB2=.5 txtSizeBetween=1"};
const Window kF2B{"frmFaceToBall", "txtFaceBall", "txtSB=.25 txtLB=.5 txtSBpos=-.1 txtLBpos=.2"};
const Window kDove{"frmRoll", "txtRollAns",
                   "txtSizeRoll=2 txtAngleRoll=30 txtRollRoll=.25 txtRiserRoll=0"};

struct Row {
    const Window& w;
    QStringList steps;  // after the fill; "dec=N" sets DecPlace
    QString said;       // the last box, "|", the answer box and "$": this much of it
};

TEST(BenchWindows, CalculateRows) {
    const QString zero = "Error, Values must be greater than zero.|earlier$";
    const QString both = "Error, Please fill both data fields with values greater than zero.|";
    const QString larger = "Error, Small ball larger than Large ball.|earlier$";
    const QString ends = "Error, Small end larger than or equal to large end.|earlier$";
    const QString fillDove =
        "Error, Please fill all data fields, only the riser can have a zero value.|earlier$";
    const QString divide = "Run-time error '11':\r\n\r\nDivision by zero|Calculating...$";
    const QString overflow = "Run-time error '6':\r\n\r\nOverflow|Calculating...$";
    const Row rows[] = {
        {kSine, {"AngleIncline=30.3", "chkDMSsine"}, "|Gage Block Height=  2.5377$"},
        {kSine,  // a height is never DMS; its DMS line from six places
         {"AngleIncline=2.978", "chkDMSsine", "optHeight"},
         "|Incline of Angle DD=  36.555417\r\nIncline of Angle DMS= 36°  33'  20\"$"},
        {kSine, {"AngleIncline=5", "optHeight"}, "Error, Sine Bar equal or shorter than Height.|$"},
        {kSine, {"AngleIncline=0"}, both + "earlier$"},
        {kSine, {"SinePlateLength=0"}, both + "earlier$"},
        {kSine, {"AngleIncline=.5", "SinePlateLength=.5"}, "|Gage Block Height=  .0044$"},
        {kSine, {"AngleIncline=1E308"}, overflow},
        {kTruePos, {"txtXpos=.0031", "txtYpos=.0041", "dec=3"}, "|True Position=  .01$"},
        {kPin, {"txtDiamond1=-1", "txtDiamond2=2", "dec=3"}, "|Gage Pin Diameter=  .894$"},
        {kPin, {"txtDiamond2="}, both + "$"},
        {kPin, {"txtDiamond1=x"}, both + "$"},
        {kPin, {"txtDiamond1=1E300", "txtDiamond2=1E-300"}, divide},  // an angle of 0
        {kSub,  // four places for the small ball
         {"txtAngBall=30.3", "chkDMSbs", "dec=2"},
         "|Plus/Minus Value=  .37\r\nNew Distance= -.0713$"},
        {kSub, {"popSub#1", "txtDistance=-.3"}, "|Plus/Minus Value=  .375\r\nNew Distance=  .075$"},
        {kSub, {"txtAngBall=", "txtSmBall=0"}, "Error, Please fill all four data fields.|earlier$"},
        {kSub,
         {"txtDistance=.3x", "txtSmBall=0"},
         "Error, Invalid input in data field #4|earlier$"},
        {kSub, {"txtAngBall=0"}, zero},
        {kSub, {"txtAngBall=1E308"}, overflow},
        {kTaper,  // the first case is chosen on load
         {"dec=2"},
         "|Large End=  .71\r\nIncluded Angle DMS= 2°  59'  1\"\r\n"
         "Angle per Side DMS= 1°  29'  30\"\r\nIncluded Angle DD=  2.98348\r\n"
         "Angle per Side DD=  1.49174$"},
        {kTaper, {"txt3="}, zero},
        {kTaper, {"txt1=0", "txt3=1E400"}, "Run-time error '6'"},  // every field is read
        {kTaper, {"popTaper#1", "txt1=.7083"}, "|Small End=  .5\r\n"},
        {kTaper, {"popTaper#2", "txt3=.5"}, ends},
        {kTaper, {"popTaper#2", "txt3=.7083"}, "|Length=  3.9994\r\n"},
        {kTaper, {"popTaper#3", "txt2=.5"}, ends},
        {kTaper,
         {"popTaper#3", "txt2=.7083"},
         "|Taper per Foot=  .6249\r\nIncluded Angle DMS= 2°  58'  59\"\r\nAngle per Side DMS=1°"},
        {kTaper, {"popTaper#4", "txt1=4", "txt3="}, "|TaperAmount=  .2083$"},
        {kTaper, {"popTaper#4", "txt2="}, zero},
        {kTaper,
         {"popTaper#5", "txt1=.75", "txt2="},
         "|Included Angle DMS= 3°  34'  47\"\r\nAngle Per Side DMS= 1°  47'  24\"\r\n"
         "Included Angle DD=  3.579822\r\nAngle Per Side DD=  1.789911$"},
        {kTaper, {"popTaper#6", "txt1=1.4724"}, "|Taper per Foot=  .6169$"},
        {kTaper, {"popTaper#6", "optTaperDMS", "txt1=1.4724"}, kHint + "|Taper per Foot=  .75$"},
        {kTaper, {"popTaper#6", "txt1=0"}, zero},
        {kTaper, {"popTaper#6", "txt1=1E308", "txt2="}, overflow},  // one field only
        {kTaper, {"popTaper=Small End"}, "|earlier$"},              // a typed case is no case
        {kB2B, {"txtSizeBetween=.2"}, "|Invalid Input$"},
        {kB2B, {"txtSizeBetween=.25"}, divide},  // 1 meets the pole
        {kB2B, {"txtSB2=.5", "txtSizeBetween=.5"}, "Error, Invalid Input.|earlier$"},
        {kB2B, {"txtSB2=.6", "txtSizeBetween=0"}, larger},
        {kB2B, {"txtSizeBetween="}, zero},
        {kB2B, {"txtSB2=0"}, zero},
        {kB2B, {"txtSB2=-1", "txtLB2=0"}, zero},
        {kB2B, {"txtLB2=.25"}, "|DD=  0\r\nDMS=  0°"},  // equal balls
        {kB2B, {"txtSizeBetween=1E-20"}, divide},       // too small to count: -1 meets the pole
        {kF2B, {"txtSBpos=.1", "txtLBpos=.15"}, "|Invalid Input$"},
        {kF2B, {"txtLBpos=.1"}, "|Invalid Input$"},
        {kF2B, {"txtLBpos=.15"}, divide},  // 1 meets the pole
        {kF2B, {"txtSB=.6", "txtSBpos=0"}, larger},
        {kF2B, {"txtLBpos="}, zero},
        {kF2B, {"txtSB=0"}, zero},
        {kF2B, {"txtSBpos=0"}, zero},
        {kF2B, {"txtSB=-1", "txtLB=0"}, zero},
        {kF2B, {"txtLB=.25"}, "|Angle per Side DD=  0\r\n"},             // equal balls
        {kF2B, {"txtSBpos=.25"}, "|Angle per Side DD= -45.584691\r\n"},  // one position alone
        {kF2B,
         {"txtSBpos=.25", "txtLBpos=.5"},
         "Error, Ball sizes and positions are the same.|earlier$"},
        {kF2B, {"txtSBpos=.1x"}, "Error, Invalid data entered in field #3 or #4|earlier$"},
        {kF2B, {"txtLBpos=.2 "}, "Error, Invalid data entered in field #3 or #4|earlier$"},
        {kF2B, {"txtSBpos=.5", "txtLBpos=.5"}, divide},                       // -1 meets the pole
        {kDove, {"txtRiserRoll=.1", "dec=2"}, "|Size Over Rolls=  2.7985$"},  // four places
        {kDove, {"optSC", "txtSizeRoll=2.683", "txtRiserRoll=.1"}, "|Sharp Corner Size=  2.1155$"},
        {kDove, {"chkDoveID"}, "|Size Over Rolls=  1.317$"},
        {kDove, {"chkNotConical"}, "|Size Over Rolls=  2.3415$"},
        {kDove, {"txtAngleRoll=30.3", "chkDMSdove"}, "|Size Over Rolls=  2.6874$"},
        {kDove, {"txtRiserRoll="}, fillDove},
        {kDove, {"txtSizeRoll=0"}, fillDove},
        {kDove, {"txtAngleRoll="}, fillDove},
        {kDove, {"txtRollRoll=0"}, fillDove},
        {kDove, {"txtRiserRoll=x"}, "Error, Invalid input in data field #4|earlier$"},
        {kDove, {"txtAngleRoll=1E308"}, overflow},
    };
    for (const Row& row : rows) {
        Harness h;
        Form& f = h.run(row.w.form,
                        QStringList{QString(row.w.answer) + "=earlier"} + row.w.fill.split(' '));
        for (const QString& step : row.steps) {
            if (step.startsWith("dec=")) {
                h.app.decPlace = static_cast<std::int16_t>(step.mid(4).toInt());
            } else {
                h.run(row.w.form, {step});
            }
        }
        h.run(row.w.form, {"Command1"});
        const QString got = h.lastBox() + "|" + f.text(row.w.answer) + "$";
        EXPECT_EQ(got.left(row.said.size()), row.said) << row.w.form << " " << row.steps.join(' ');
    }
}

TEST(BenchWindows, ImageAndHelp) {
    const std::tuple<const Window&, QStringList, QString> rows[] = {
        {kSine, {"Command3"}, "frmSinePlateView"},
        {kPin, {"Command3"}, "frmPinView"},
        {kSub,
         {"Command3"},
         "If entering the angle in Degrees Minutes Seconds " + kHint +
             " (always use a leading zero for minutes or seconds less than 10)"},
        {kTaper, {"Command3"}, "frmtapersView"},
        {kB2B, {"Command3"}, "frmBallToBallHelp"},
        {kF2B,
         {"Command3", "Command4"},
         "Enter negative values for below the face and positive values for above the face."},
        {kDove, {"Command3"}, "frmDoveHelp"},
        {kF2B, {"Command3"}, "frmFaceToBallHelp"},
    };
    for (const auto& [w, steps, shown] : rows) {
        Harness h;
        h.run(w.form, steps);
        EXPECT_TRUE(h.app.find(shown) != nullptr || h.lastBox() == shown) << w.form;
    }
}

// Each taper case sets only what its row names; the rest stays as earlier cases
// left it. The captions of sine plate and dove tails.
TEST(BenchWindows, TaperCasesRememberWhatTheyDoNotSetAndCaptions) {
    Harness h;
    Form& f = h.open("frmTapers");
    const auto Look = [](const Form& f) {
        QString look = f.caption("lbl1") + "|" + f.caption("lbl2") + "|" + f.caption("lbl3") + "|";
        for (const char* name : {"Frame1", "lbl2", "txt2", "lbl3", "txt3"}) {
            look += f.control(name).visible ? QString(name) + " " : QString();
        }
        return look;
    };
    EXPECT_EQ(Look(f), "Small End|Taper Per Foot|Length|lbl2 txt2 lbl3 txt3 ");
    const std::pair<int, const char*> steps[] = {
        {6, "Angle per Side|Taper Per Foot|Length|Frame1 "},
        {4, "Taper Length|Taper Per Foot|Length|lbl2 txt2 "},
        {5, "Taper Per Foot|Taper Per Foot|Length|"},
        {3, "Small End|Large End|Taper Length|lbl2 txt2 lbl3 "},
        {2, "Small End|Taper Per Foot|Large End|lbl2 txt2 lbl3 "},
        {0, "Small End|Taper Per Foot|Taper Length|lbl2 txt2 lbl3 txt3 "},
        {6, "Angle per Side|Taper Per Foot|Taper Length|Frame1 "},
        {1, "Large End|Taper Per Foot|Taper Length|lbl2 lbl3 "},  // hidden fields still read
    };
    for (const auto& [taperCase, look] : steps) {
        h.run("frmTapers", {"popTaper#" + QString::number(taperCase)});
        EXPECT_EQ(Look(f), look) << taperCase;
    }
    Form& sine = h.run("frmSinePlate", {"chkDMSsine", "optHeight"});
    EXPECT_EQ(sine.caption("txtHelpAng") + "|" + sine.caption("txtSPtype"),
              kHint + "|Gage Block Height");
    h.run("frmSinePlate", {"chkDMSsine", "optAngle"});
    EXPECT_EQ(sine.caption("txtHelpAng") + "|" + sine.caption("txtSPtype"), "|Angle's Incline");
    Form& dove = h.run("frmRoll", {"optSC"});
    EXPECT_EQ(dove.caption("Field2125"), "Size Over Rolls");
    h.run("frmRoll", {"optOverRolls"});
    EXPECT_EQ(dove.caption("Field2125"), "Sharp Corner Size");
}

// The pictures stand beside the test program, as the build puts them there; in
// a folder of its own, one is renamed and one broken.
TEST(DoveHelp, ReadsThePicturesFromTheProgramsFolder) {
    Harness h;
    const char* const files[] = {"sc_or.bmp", "id over rolls.bmp", "angle_plane.bmp",
                                 "angle_planeID.bmp", "riser.bmp"};
    Form& help = h.open("frmDoveHelp");
    for (int i : {0, 4, 3, 2, 1}) {  // the first on opening
        h.run("frmDoveHelp", i == 0 ? QStringList() : QStringList{"popDps#" + QString::number(i)});
        EXPECT_EQ(help.control("Image1").picture, h.app.programFolder + "/" + files[i]);
    }
    QTemporaryDir dir;
    const QString folder = h.app.programFolder + "/";
    ASSERT_TRUE(QFile::copy(folder + "sc_or.bmp", dir.filePath("sc_or.bak")));  // renamed
    ASSERT_TRUE(QFile::copy(folder + "angle_plane.bmp", dir.filePath("angle_plane.bmp")));
    QFile broken(dir.filePath("riser.bmp"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && broken.write("PNG"));
    h.app.programFolder = dir.path();
    h.run("frmDoveHelp", {"popDps#0"});
    EXPECT_EQ(h.lastBox(), "Error, Missing the picture file or the name of it was changed!");
    EXPECT_EQ(help.control("Image1").picture, "");
    h.run("frmDoveHelp", {"popDps#2", "popDps#4"});
    EXPECT_EQ(h.lastBox(), "An error has ocuured loading the picture.");
    EXPECT_EQ(help.control("Image1").picture, dir.filePath("angle_plane.bmp"));  // left as it was
    EXPECT_EQ(h.ui.messageTexts().size(), 2);
}

}  // namespace
}  // namespace tavrin
