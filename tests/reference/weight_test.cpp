#include <gtest/gtest.h>

#include "reference/weight.h"
#include "tests/support/harness.h"

namespace tavrin {
namespace {

// 12.375 by 5.625 (flat), 144.25 long: large enough for the last digit of
// every factor to show. Figures worked apart from the code.
TEST(WeightSolver, EachShapeInBothMaterialsToTwoPlaces) {
    const std::tuple<Stock, double, double> rows[] = {
        {Stock::Round, 4920.48, 1700.97},   {Stock::Flat, 2847.67, 987.38},
        {Stock::Square, 6264.88, 2172.24},  {Stock::Hexagon, 5425.62, 1877.7},
        {Stock::Octagon, 5189.99, 1793.02},
    };
    for (const auto& [shape, steel, aluminium] : rows) {
        EXPECT_EQ(PieceWeight(shape, true, 12.375, 5.625, 144.25).value(), steel);
        EXPECT_EQ(PieceWeight(shape, false, 12.375, 5.625, 144.25).value(), aluminium);
    }
}

TEST(WeightSolver, TheSixLines) {
    EXPECT_EQ(WeightAnswer(123456.789, 12.34567, 3, 2.5),
              "Solid Weight[lbs]=  123456.789\r\nSolid Weight[kg]=  55999.058\r\n"
              "Length[feet] =  3.0864\r\nLength[meters]=  .9407\r\nCost= $308641.97\r\n"
              "Cost per Piece= $102880.66");
}

// Steel round bar 1 by 12 unless a step says otherwise (a flat bar needs its
// height); the box shown, then the answer's first line.
TEST(Weight, CalculateRows) {
    const std::pair<QStringList, QString> rows[] = {
        {{}, "|Solid Weight[lbs]=  2.67"},
        {{"txtQtyW=10"}, "|Solid Weight[lbs]=  26.7"},  // ten rounded pieces
        {{"popStockType#1", "txtHeightW=.5", "txtThruW=.25"}, "|Solid Weight[lbs]=  1.53"},
        {{"Option2", "popStockType#3", "txtThruW=-1"}, "|Solid Weight[lbs]=  1.02"},
        {{"popStockType=Round Stock"}, "|Solid Weight[lbs]=  0"},  // no shape chosen
        {{"popStockType#1"}, "Error, One or more data fields are empty.|earlier"},
        {{"txtQtyW="}, "Run-time error '6':\r\n\r\nOverflow|Calculating..."},
    };
    const QStringList job{"txtWeightAns=earlier", "txtLengthW=12", "txtDiaW=1"};
    for (const auto& [steps, answer] : rows) {
        testing::Harness h;
        Form& f = h.run("frmWeight", job + steps << "Command1");
        EXPECT_EQ(h.lastBox() + '|' + f.text("txtWeightAns").section("\r\n", 0, 0), answer)
            << steps.join(' ');
    }
}

TEST(Weight, ShapesSetTheSizeCaptionAndHeight) {
    testing::Harness h;
    Form& f = h.open("frmWeight");
    EXPECT_EQ(f.text("txtThruW") + f.text("txtQtyW") + f.text("txtCost") + f.text("popStockType"),
              "010Round Stock");
    QStringList shapes;  // the size caption, "+" for each height control shown
    for (const int index : {1, 2, 3, 4, 0}) {
        h.run("frmWeight", {QString("popStockType#%1").arg(index)});
        shapes << f.caption("Field1667") + (f.control("txtHeightW").visible ? "+" : "") +
                      (f.control("Label1651").visible ? "+" : "");
    }
    EXPECT_EQ(shapes.join('|'), "Width++|Square Size|Hex Size|Oct Size|Diameter");
}

}  // namespace
}  // namespace tavrin
