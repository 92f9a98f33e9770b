#include <gtest/gtest.h>

#include <array>

#include "tests/support/harness.h"
#include "threads/three_wire.h"

// Expected figures are worked in doubles, step by step, apart from the code.
namespace tavrin {
namespace {

using Three = std::array<double, 3>;

Three Values(Real a, Real b, Real c) {
    return {a.value(), b.value(), c.value()};
}

// One known size for the three sought sizes; Loewenherz and BA take the wire in mm.
TEST(ThreeWireSolver, EachFormAndSoughtSizeHasItsFormula) {
    const struct {
        int form;
        double w, s, t;
        Three figures;
    } rows[] = {
        {Ansu, .032, .25, 20, {0.3026985, 0.1973015, 0.27022250000000003}},
        {Whitworth, .036, .375, 16, {0.428933855, 0.321066145, 0.38891323}},
        {SharpV, .058, .5, 10, {0.5873970000000001, 0.412603, 0.500795}},  // 1.73205, not 1.51555
        {Acme, .065, 1, 8, {1.082933875, 0.9170661250000001, 1.0204360000000001}},
        {Loewenherz, .762, .25, 20, {7.54578628, 5.1542137199999996, 6.593286279999999}},
        {BritishAssoc, .8, .25, 20, {7.6931682, 5.0068318, 6.9311682}},
    };
    for (const auto& r : rows) {
        auto figure = [&r](int find) { return ThreeWireFigure(r.form, find, r.w, r.s, r.t); };
        EXPECT_EQ(Values(figure(0), figure(1), figure(2)), r.figures) << r.form;
    }
}

TEST(ThreeWireSolver, MillimetreAnswerToItsPlaces) {
    EXPECT_EQ(ThreeWireAnswer(Loewenherz, 1, 5.00683, 6), "Pitch Dia.=  .1971\r\n [ 5.00683 mm]");
}

// Wires below, on and just above the smallest, on or just below the largest, and above it
// (mm for Loewenherz and BA): the first and the last do not fit.
TEST(ThreeWireSolver, WireLimits) {
    const struct {
        int form;
        double tpi;
        std::array<double, 5> wires;
    } rows[] = {
        {Ansu, 20, {.028, 0.028000000000000004, .0281, .045, .0451}},  // .028 is below 0.56 / 20
        {Whitworth, 16, {.0337, .03375, .034, .0475, .048}},
        {Acme, 8, {.0609, .060907875, .0609079, .0812516, .0812517}},
        {Loewenherz, 20, {.68, 0.6867652000000001, .68677, 1.2424, 1.24242}},
        {BritishAssoc, 20, {.63, .6331204, .63313, .92569, .9257}},
    };
    for (const auto& r : rows) {
        QString fits;
        for (double w : r.wires) {
            fits += WireFits(r.form, w, r.tpi) ? 'y' : 'n';
        }
        EXPECT_EQ(fits, "nyyyn") << r.form;
    }
}

TEST(ThreeWireSolver, BestWiresAndDepth) {
    const struct {
        int form;
        double tpi, depth;
        Three wires;  // best, smallest and largest, in inches
    } rows[] = {
        {Ansu, 20, 0.0306715, {0.0288675, 0.028000000000000004, 0.045}},
        {Whitworth, 16, 0.040020625, {0.035230625, 0.03375, 0.0475}},
        {SharpV, 10, 0.08660253999999999, {0.057735, 0.05600000000000001, 0.09}},
        {Acme, 8, 0.0625, {0.06455625, 0.060907875, 0.081251625}},
        {Loewenherz, 4, 0.189499621, {0.13975472048999998, 0.13518972962, 0.24456951086}},
        {BritishAssoc, 4, 0.14999969999999999, {0.136562226875, 0.12462975074, 0.182222135555}},
    };
    for (const auto& r : rows) {
        const WireSizes sizes = BestWires(r.form, r.tpi);
        EXPECT_EQ(Values(sizes.best, sizes.smallest, sizes.largest), r.wires) << r.form;
        EXPECT_EQ(SingleThreadDepth(r.form, r.tpi).value(), r.depth) << r.form;
    }
}

struct Row {
    const char *choices, *tpi, *wire, *known;  // choices: selections and check boxes, first
    char yes;                                  // 'y' or 'n' to the wire question, if it comes
    const char *box, *answer;  // the last box shown; "earlier" where the answer box keeps its text
    const char* click = "Command1";
};

const char* const kZero = "Error, Please fill all three data fields with values greater than zero.";
const char* const kAsk = "You have entered an invalid wire size for the data entered, continue?";

TEST(ThreeWire, HandlerRows) {
    // clang-format off
    const Row rows[] = {
        // metric input scales a count as well
        {"popFindThd#0 chkTWMet", "20", "20", "25", 0, "", "Over Wire=  2.2466\r\n [ 57.0636 mm]"},
        {"popTypThd#4", "20", ".03", ".25", 0, "", "Pitch Dia.=  .2029\r\n [ 5.1542 mm]"},
        // only zero is refused, and text counts as zero
        {"popFindThd#2", "20", ".032", "-.2702", 0, "", "Basic Meas O/W= -.25\r\n [-6.35 mm]"},
        {"", "abc", ".032", ".2175", 0, kZero, "earlier"},
        {"", "20", "0", ".2175", 0, kZero, "earlier"},
        {"", "20", ".032", "-0", 0, kZero, "earlier"},
        {"popFindThd#0", "20", ".028", ".2175", 'n', kAsk, ""},
        {"popFindThd#0", "20", ".028", ".2175", 'y', kAsk, "Over Wire=  .2582\r\n [ 6.5583 mm]"},
        {"popTypThd#4", "20", "1E308", ".2", 0, "Run-time error '6':\r\n\r\nOverflow",
         "Calculating..."},
        // best wire (Command3) and thread depth (Command4), to five places
        {"", "", "", "", 0, "Error, Pitch value must be greater than zero.", "earlier", "Command3"},
        {"", "abc", "", "", 0, "Error, TPI or Pitch value must be greater than zero.", "earlier",
         "Command4"},
        {"popTypThd#5 chkTWMet chkPitch", "1.5", "", "", 0,
         "Best wire size is  .03226 [ .81937 mm]\r\nLargest wire size is  .04304 [ 1.09333 mm]\r\n"
         "Smallest wire size is  .02944 [ .74778 mm]", "earlier", "Command3"},
        {"popTypThd#4 chkTWMet chkPitch", "1.5", "", "", 0,
         "Single depth of thread=  .04476\r\n [ 1.137 mm]", "earlier", "Command4"},
    };
    // clang-format on
    for (const Row& row : rows) {
        testing::Harness h;
        h.ui.answers.push_back(row.yes == 'y');  // No when no answer is given
        Form& f = h.run("frmThreeWire", QString(row.choices).split(' ', Qt::SkipEmptyParts));
        f.setText("txtTWans", "earlier");
        h.run("frmThreeWire", {QString("txtTPI=") + row.tpi, QString("txtWireSize=") + row.wire,
                               QString("txtPitchOrOverWire=") + row.known, row.click});
        EXPECT_EQ(h.lastBox(), row.box) << row.choices << " " << row.wire;
        EXPECT_EQ(f.text("txtTWans"), row.answer) << row.choices << " " << row.wire;
        EXPECT_TRUE(row.yes == 0 || h.ui.shown.front().title == "Incorrect wire size");
    }
}

TEST(ThreeWire, CaptionsFollowTheChoices) {
    testing::Harness h;
    Form& f = h.run("frmThreeWire", {"popFindThd#0"});
    const QStringList forms = f.control("popTypThd").items;  // the first is chosen on load
    EXPECT_EQ(forms.value(4) + "|" + forms.value(f.listIndex("popTypThd")) + "|" +
                  f.caption("txtMultiThd"),
              QStringLiteral("Löwenherz (53° 8')|ANSU (60°)|Pitch Dia."));
    h.run("frmThreeWire", {"popFindThd#2", "chkPitch"});
    EXPECT_EQ(f.caption("txtMultiThd") + "|" + f.caption("Label1571"), "Major Dia.|Pitch");
    h.run("frmThreeWire", {"popFindThd#1", "chkPitch", "popTypThd#3"});
    EXPECT_EQ(f.caption("txtMultiThd") + "|" + f.caption("Label1571"), "Meas. Over Wires|TPI");
}

}  // namespace
}  // namespace tavrin
