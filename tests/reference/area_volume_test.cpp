#include <gtest/gtest.h>

#include "frame/numeric_text.h"
#include "reference/figures.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

using testing::Harness;

// The branch of a figure on the typed fields: the boxes shown, then what the
// answer box holds ("<keep>" where it is left), its lines joined by "; ".
QString Solved(int number, const QString& typed) {
    FigureFields f{};
    const QStringList texts = typed.split('|');
    for (int i = 0; i < 5; ++i) {
        const QString text = texts.value(i);
        f.t[i] = ValOf(text);
        f.typed[i] = !text.isEmpty();
    }
    QStringList boxes;
    const FigureBoxes say{[&](const QString& t) { boxes << t; },
                          [&](const QString&) { boxes << "warning"; }};
    QString answer;
    try {
        const FigureAnswer a = SolveFigure(number, f, say);
        answer = a.kind == FigureAnswer::Kind::Keep ? "<keep>" : a.text;
    } catch (const RunTimeError&) {
        boxes << "Invalid Input!";  // the window's own handler says so
    }
    return boxes.join(" | ") + " => " + answer.replace("\r\n", "; ");
}

// Each figure with its whole answer, each rule and message once. Figures
// worked apart from the code.
TEST(FigureSolver, EveryFigureRuleAndMessage) {
    const char* const fillAll =
        "Error, Please fill all data fields with values greater than zero. => ";
    const char* const onlyOne =
        "Error, Please fill only one data field with a value greater than zero. => ";
    const std::tuple<int, const char*, const char*> rows[] = {
        {0, "3|4|5", " => Area= 6.0000"},
        {0, "1|1|5", "Invalid Input! => "},  // an impossible triangle faults
        {0, "3|4|abc", fillAll},
        {1, "4|3|6", " => Volume= 64.4520"},
        {2, "4|3|6", " => Volume= 63.6405"},
        {3, "5|3", " => Area= 50.2655"},
        {4, "5|3|90", " => Area= 12.5664"},
        {5, "3|2", " => Angle= 85.9440; Area= 3.0000"},       // rule 1
        {5, "|2|90", " => Arc Length=3.1416; Area= 3.1416"},  // rule 3, no blank after =
        {5, "3||86", " => Radius= 1.9987; Area= 2.9980"},     // rule 4
        {5, "3|||3", " => Radius= 2.0000; Angle= 85.9440"},   // rule 5
        {5, "|2||3", " => Arc= 3.0000; Angle= 85.9440"},      // rule 6
        {5, "||30|5", "Error, Solution not possible with Angle and Area only. => "},
        {5, "1|2|3", "Error, Please fill only two data fields. => "},
        {5, "|0|30", "Error, Please fill two data fields. => "},  // the count before the rules
        // a zero among the two: the answer stays
        {5, "3|0|30", "Please fill data fields with values greater than zero. => <keep>"},
        {6, "3|4", " => Volume= 50.2655; Area= 62.8319; Side= 5.0000"},     // height and radius
        {6, "|4|5", " => Volume= 50.2655; Area= 62.8319; Height= 3.0000"},  // radius and side
        {6, "0|5|6", "Error, Radius data must be entered. => "},  // a typed 0 meets this rule
        {6, "|5|4", "Invalid Input! => "},                        // side shorter than radius faults
        {6, "3", "Error, Please fill two data fields. => "},
        {6, "3|4|5", "Error, Please fill only two data fields. => "},
        {7, "2", " => Volume= 8.0000"},
        {8, "2", " => Area= 37.6992; Length= 16.0000"},
        {10, "4|6", " => Area= 18.8496; Circumference= 16.0190"},
        {11, "4|6", " => Volume= 50.2656"},
        {12, "3|4|2", " => Volume= 21.9912"},
        {13, "3|16|4", " => Volume= 28.0000"},
        {13, "3|-16|4", "Invalid Input! => "},  // a negative product under the root
        // 14 and 19: the side, the outside, the inside diameter
        {14, "1", " => Area= 2.5980; Inside Diameter= 1.7320; Outside Diameter= 2.0000"},
        {14, "|4", " => Area= 10.3920; Side= 2.0000; Inside Diameter= 3.4640"},
        {14, "||3", " => Area= 7.7940; Side= 1.7325; Outside Diameter= 3.4650"},
        // a typed 0 decides
        {14, "0|4", " => Area= 0.0000; Inside Diameter= 0.0000; Outside Diameter= 0.0000"},
        {14, "1|2", onlyOne},
        {14, "", " => "},  // nothing typed
        {15, "3|4|2", " => Volume= 28.2743"},
        {16, "4|2", " => Volume= 29.3216"},
        {17, "6|4|2|1", " => Area= 10.0541"},
        {17, "6|4|0|1",
         "Please fill all four data fields with values greater than zero. => <keep>"},
        {17, "6|4|-2|-1", "Invalid Input! => "},  // the logarithm of a negative
        {18, "3|4|6", " => Area= 5.3327"},
        {19, "1", " => Area= 4.8280; Inside Diameter= 2.4140; Outside Diameter= 2.6140"},
        {19, "|4", " => Area= 11.3120; Side= 1.5300; Inside Diameter= 3.6960"},
        {19, "||3", " => Area= 7.4565; Side= 1.2420; Outside Diameter= 3.2460"},
        {20, "100000|100000", " => Area= 6666666666.6660"},  // thirteen sixes
        {21, "100000|100000", " => Area= 6666666666.6666"},  // fourteen sixes
        {22, "3|2", " => Area= 6.0000"},
        {23, "2||6|1", "warning => Area= 2.5981; Inside Diameter= 1.7321"},   // rule 1
        {23, "|2|6|1", "warning => Area= 3.0000; Outside Diameter= 2.2361"},  // rule 2
        {23, "2|1.7|6", "warning => Area= 2.6866; Side= 1.0536"},             // rule 3
        {23, "1|1|1|1", "Error, Please fill only three data fields. => "},
        {23, "1|1", "Error, Please fill three data fields with values greater than zero. => "},
        {23, "1|1||1", "Error, Number of sides data must be entered. => "},
        {24, "4|2|3", " => Area= 31.4159; Volume= 31.4160"},
        {25, "3|2", " => Volume= 6.0000"},
        {26, "3|2", " => Volume= 2.0000"},
        {27, "-2|3", " => Area= -6.0000; Diagonal Length= 3.6056"},  // a negative side counts
        // 28 "5|0": told, and rule 1 still runs
        {28, "3|4", " => Area= 6.0000; Hypotenuse= 5.0000"},      // rule 1
        {28, "3||5", " => Area= 6.0000; Side Adjacent= 4.0000"},  // rule 2
        {28, "|4|5", " => Area= 6.0000; Side Opposite= 3.0000"},  // rule 3
        {28, "5|0", "Error, Please fill two data fields. => Area= 0.0000; Hypotenuse= 5.0000"},
        {28, "5||3", "Error, Invalid input. => <keep>"},
        {28, "3|4|5", "Error, Please fill only two data fields. => <keep>"},
        {29, "2", " => Area= 0.8600"},   // radius
        {29, "|2", " => Area= 0.4300"},  // chord
        {29, "1|1", onlyOne},
        {30, "3", " => Area= 9.0000; Diagonal Length= 4.2420"},
        {31, "2|3|4", " => Volume= 24.0000"},
        {32, "2", " => Area= 12.5664; Volume= 4.1888"},
        {33, "1|1.5", " => Area= 12.1455; Volume= 3.1416; Chord= 1.7321"},
        {33, "1|2", " => Area= 12.5664; Volume= 4.1888; Chord= 0.0000"},  // 2 r passes
        {33, "1|3", "Error, Height greater than 2x the radius. => "},
        {33, "1", fillAll},
        {34, "2|1", " => Area= 12.5664; Volume= 5.2360; Chord= 3.4641"},    // radius and height
        {34, "|1|3", " => Area= 10.2102; Volume= 4.0579; Radius= 1.6250"},  // height and chord
        {34, "1|2|3", "Error, Please fill only data fields #1 & #2 or #3 & #4. => "},
        {34, "2", "Error, Insufficient data entered. => "},
        {34, "1|3", "Error, Height greater than 2x the radius. => "},
        {35, "2|30", " => Area= 4.1880; Volume= 2.7840"},
        {36, "||1|2", " => Area= 12.5664"},                                   // height and radius
        {36, "3|4|1", " => Volume= 10.3411; Area= 19.6350; Radius= 3.1250"},  // chords, height
        {36, "1|1|1|1", "Error, Please only fill data fields #1 & #2 & #3 OR #3 & #4. => "},
        {36, "1", "Error, Insufficient data entered. => "},
        {36, "0||1|2", "Error, wrong data fields filled. => "},  // a typed 0 is a wrong field
        {36, "||3|1", "Error, Height greater than 2x the radius. => "},
        {37, "1|1", " => Area= 39.4784; Volume= 19.7392"},  // volume unrounded
        {38, "1|2|3|4|5", " => Area= 11.0000"},
        {39, "3|4|2", " => Area= 7.0000"},
        {40, "4|3|2|5", " => Volume= 25.0000"},
    };
    for (const auto& [number, typed, expected] : rows) {
        EXPECT_EQ(Solved(number, typed), expected) << number << ": " << typed;
    }
}

// The catalogue dresses the one solver: title, captions, hidden fields, all
// emptied; the fifth caption stays, unseen, once the trapezium set it.
TEST(AreaVolume, ARowDressesTheSolver) {
    Harness h;
    h.run("form1", {"lstArea#38"});
    Form& solver = h.run("form2", {"Text1=1", "Text5=5", "Command1"});
    const auto dress = [&solver] {
        QString s = solver.caption("lblType");
        for (int i = 1; i <= 5; ++i) {
            const QString n = QString::number(i);
            s += '|' + solver.caption("Label" + n) +
                 (solver.control("Text" + n).visible ? "+" : "-") + solver.text("Text" + n);
        }
        return s + '|' + solver.text("txtAns");
    };
    EXPECT_EQ(dress(),
              "Trapezium|Height #1(H tall)+1|Height #2(h short)+|Length a (H to h)+|"
              "Length b (left)+|Length c (right)+5|");
    h.run("form1", {"lstArea#12"});
    EXPECT_EQ(dress(),
              "Frustrum of a Cone|Height+|Base Diameter+|Top Diameter+|-|Length c (right)-|");
    h.run("form2", {"Text1=2", "Command1"});
    h.run("form1", {"lstArea#7"});
    EXPECT_EQ(dress(), "Cube|Size of Side+|-|-|-|Length c (right)-|") << "the same row empties";
    EXPECT_EQ(h.app.find("form1")->control("lstArea").items.size(), 41);
}

TEST(AreaVolume, CalculateOnTheChosenFigure) {
    Harness h;
    h.run("form1", {"lstArea#9"});
    Form& f = h.run("form2", {"Text1=1", "Text2=2", "Command1"});
    EXPECT_EQ(f.text("txtAns"), "Area= 12.5664\r\nVolume= 6.2832\r\nTotal Area= 18.8496");
    h.run("form1", {"lstArea#23"});
    h.run("form2", {"Text1=2", "Text3=6", "Text4=3", "Command1"});  // the root of a negative
    EXPECT_EQ(
        h.ui.shown[0].title + ": " + h.ui.shown[0].text + " | " + h.ui.shown[1].text,
        "IMPORTANT MESSAGE: All three data items you entered must be correct or else you will "
        "get an inaccurate answer. | Invalid Input!");
    EXPECT_EQ(f.text("txtAns") + f.text("Text4"), "3") << "the answer emptied, the fields kept";
    h.run("form2", {"Text1=1", "txtAns=earlier", "Command3"});
    const QString note =
        "Any edition of Machinery's Handbook has diagrams and formulas in math section (areas and "
        "volumes) to use as needed, Tavrin follows these diagrams.";
    h.app.unload(*h.app.find("form1"));
    h.run("form2", {"Command1"});  // no figure: no word, nothing changes
    EXPECT_EQ(h.lastBox() + '|' + f.text("txtAns"), note + "|earlier");
}

}  // namespace
}  // namespace tavrin
