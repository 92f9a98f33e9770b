#include <gtest/gtest.h>

#include "inspection/tapers.h"
#include "tests/support/harness.h"

// Expected figures worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

using testing::Harness;

TEST(TapersSolver, EachCase) {
    EXPECT_EQ(TaperAnswer(0, .5, .625, 4, 4),
              "Large End=  .7083\r\nIncluded Angle DMS= 2°  59'  1\"\r\nAngle per Side DMS= 1°  "
              "29'  30\"\r\nIncluded Angle DD=  2.98348\r\nAngle per Side DD=  1.49174");
    EXPECT_EQ(TaperAnswer(5, .75, 0, 0, 4),
              "Included Angle DMS= 3°  34'  47\"\r\nAngle Per Side DMS= 1°  47'  24\"\r\n"
              "Included Angle DD=  3.579822\r\nAngle Per Side DD=  1.789911");
    const std::tuple<int, double, double, double, int, const char*> rows[] = {
        {0, .5, .625, 4, 2, "Large End=  .71\r\nIncluded Angle DMS= 2°  59'  1\""},  // DecPlace
        {1, .5, .625, 4, 4, "Small End=  .2917\r\nIncluded Angle DMS= 2°  59'  1\""},
        {1, 1, 2, 3, 4, "Small End=  .5\r\n"},
        {2, .5, .625, .7083, 4, "Length=  3.9994\r\nIncluded Angle DMS= 2°  59'  1\""},
        {3, .5, .7083, 4, 4,
         "Taper per Foot=  .6249\r\nIncluded Angle DMS= 2°  58'  59\"\r\n"
         "Angle per Side DMS=1°  29'  29\"\r\nIncluded Angle DD=  2.983004\r\n"
         "Angle per Side DD=  1.491502"},
        {4, 4, .625, 0, 4, "TaperAmount=  .2083"},
        {5, .7, 0, 0, 4, "Included Angle DMS= 3°  20'  29\""},
        {6, 1.789911, 0, 0, 4, "Taper per Foot=  .75"},
        {6, 30, 0, 0, 2, "Taper per Foot=  13.86"},
    };
    for (const auto& [taperCase, one, two, three, places, start] : rows) {
        EXPECT_TRUE(TaperAnswer(taperCase, one, two, three, places).startsWith(start)) << start;
    }
}

TEST(Tapers, CalculateRows) {
    const char* const zero = "Error, Values must be greater than zero.";
    const char* const ends = "Error, Small end larger than or equal to large end.";
    const std::pair<QStringList, QString> rows[] = {
        {{"txt1=.5", "txt2=.625", "txt3=4"}, "|Large End=  .7083"},
        {{"txt1=.5", "txt2=.625"}, QString(zero) + "|earlier"},
        {{"txt1=-.5", "txt2=.625", "txt3=4"}, QString(zero) + "|earlier"},
        {{"txt2=.625", "txt3=4"}, QString(zero) + "|earlier"},
        {{"txt1=.5", "txt3=4"}, QString(zero) + "|earlier"},
        // every field is read, even after the first fails
        {{"txt1=0", "txt3=1E400"}, "Run-time error '6':\r\n\r\nOverflow|earlier"},
        {{"popTaper#2", "txt1=.5", "txt2=.625", "txt3=.5"}, QString(ends) + "|earlier"},
        {{"popTaper#2", "txt1=.5", "txt2=.625", "txt3=.7083"}, "|Length=  3.9994"},
        {{"popTaper#3", "txt1=.5", "txt2=.5", "txt3=4"}, QString(ends) + "|earlier"},
        {{"popTaper#3", "txt1=.6", "txt2=.5", "txt3=4"}, QString(ends) + "|earlier"},
        {{"popTaper#4", "txt1=4", "txt2=.625"}, "|TaperAmount=  .2083"},
        {{"popTaper#4", "txt1=4"}, QString(zero) + "|earlier"},
        {{"popTaper#5", "txt1=.75"}, "|Included Angle DMS= 3°  34'  47\""},
        {{"popTaper#6", "txt1=1.4724"}, "|Taper per Foot=  .6169"},
        {{"popTaper#6", "optTaperDMS", "txt1=1.4724"},
         "enter 22° 3' 22\" as 22.0322|Taper per "
         "Foot=  .75"},
        {{"popTaper#6"}, QString(zero) + "|earlier"},
        // a typed case is no case: nothing happens
        {{"popTaper=Small End", "txt1=.5", "txt2=.625", "txt3=4"}, "|earlier"},
    };
    for (const auto& [steps, answer] : rows) {
        Harness h;
        Form& f = h.run("frmTapers", {"txtTaperAns=earlier"});
        h.run("frmTapers", steps + QStringList{"Command1"});
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtTaperAns").section("\r\n", 0, 0), answer)
            << steps.join(' ');
    }
}

QString Look(const Form& f) {
    QString look = f.caption("lbl1") + "|" + f.caption("lbl2") + "|" + f.caption("lbl3") + "|";
    for (const char* name : {"Frame1", "lbl2", "txt2", "lbl3", "txt3"}) {
        look += f.control(name).visible ? QString(name) + " " : QString();
    }
    return look;
}

// Each case sets only what its row names; the rest stays as earlier cases left it.
TEST(Tapers, CasesRememberWhatTheyDoNotSet) {
    Harness h;
    Form& f = h.open("frmTapers");
    EXPECT_EQ(Look(f), "Small End|Taper Per Foot|Length|lbl2 txt2 lbl3 txt3 ");
    const std::pair<int, const char*> steps[] = {
        {6, "Angle per Side|Taper Per Foot|Length|Frame1 "},
        {4, "Taper Length|Taper Per Foot|Length|lbl2 txt2 "},
        {5, "Taper Per Foot|Taper Per Foot|Length|"},
        {3, "Small End|Large End|Taper Length|lbl2 txt2 lbl3 "},
        {2, "Small End|Taper Per Foot|Large End|lbl2 txt2 lbl3 "},
        {0, "Small End|Taper Per Foot|Taper Length|lbl2 txt2 lbl3 txt3 "},
        {6, "Angle per Side|Taper Per Foot|Taper Length|Frame1 "},
        {1, "Large End|Taper Per Foot|Taper Length|lbl2 lbl3 "},
    };
    for (const auto& [taperCase, look] : steps) {
        h.run("frmTapers", {"popTaper#" + QString::number(taperCase)});
        EXPECT_EQ(Look(f), look) << taperCase;
    }
    // Hidden fields are still read.
    h.run("frmTapers",
          {"txt1=.7083", "txt2=.625", "txt3=4", "optTaperDMS", "optTaperDD", "Command1"});
    EXPECT_TRUE(f.text("txtTaperAns").startsWith("Small End=  .5\r\n"));
    h.run("frmTapers", {"Command2", "Command3"});
    EXPECT_NE(h.app.find("frmtapersView"), nullptr);
    EXPECT_EQ(h.ui.messageTexts(), QStringList{QStringLiteral("enter 22° 3' 22\" as 22.0322")});
    EXPECT_EQ(f.text("txt1") + f.text("txt2") + f.text("txt3") + f.text("txtTaperAns"), "");
    EXPECT_EQ(f.listIndex("popTaper"), 1);
    EXPECT_TRUE(f.value("optTaperDD"));
}

}  // namespace
}  // namespace tavrin
