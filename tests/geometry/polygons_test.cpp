#include <gtest/gtest.h>

#include "geometry/polygons.h"
#include "tests/geometry/calculated.h"

// Expected figures worked in doubles apart from the code, to six places.
namespace tavrin {
namespace {

TEST(PolygonsSolver, TheSizesNoHandlerRowReaches) {
    const std::tuple<int, int, double, double, double> rows[] = {
        {SquareShape, AcrossFlats, 1.414214, 1, 1},
        {HexagonShape, AcrossFlats, 1.154701, 1, .57735},  // the flat from the tangent
        {HexagonShape, AcrossPoints, 1, .866025, .5},
        {HexagonShape, SizeOfFlat, 2, 1.732051, 1},
        {OctagonShape, AcrossFlats, 1.082392, 1, .414214},
        {OctagonShape, AcrossPoints, 1, .92388, .382683},
    };
    for (const auto& [shape, known, points, flats, flat] : rows) {
        const PolygonSizes s = SolvePolygon(shape, known, 1, 6);
        EXPECT_EQ(std::tuple(s.points.value(), s.flats.value(), s.flat.value()),
                  std::tuple(points, flats, flat))
            << shape << known;
    }
}

TEST(Polygons, HandlerRows) {
    const std::pair<QStringList, const char*> rows[] = {
        {{"txtPol1=1"}, "1| .7071| .7071"},
        {{"cboShape#2", "txtPol3=1"}, " 2.6131| 2.4142|1"},
        // a square copies the typed text between flats and flat
        {{"txtPol3=2x"}, " 2.8284|2x|2x"},
        {{"txtPol1=1", "txtPol3= "}, "Please fill only one data field.1|| "},
        {{}, "Please fill one data field.||"},
    };
    for (const auto& [steps, shown] : rows) {
        EXPECT_EQ(testing::Calculated("frmPolygons", steps, {"txtPol1", "txtPol2", "txtPol3"}),
                  shown)
            << steps.join(' ');
    }
}

TEST(Polygons, TheChosenShapeAloneIsDrawn) {
    testing::Harness h;
    Form& f = h.run("frmPolygons", {"cboShape#1"});
    EXPECT_TRUE(!f.control("imgSquare").visible && f.control("imgHex").visible &&
                !f.control("imgOct").visible);
}

}  // namespace
}  // namespace tavrin
