#pragma once

#include <QString>
#include <vector>

namespace tavrin {

// One row of the catalogue: its list text, the solver's title where it differs
// ("Frustrum of a Cone"), and the captions of the solver's five fields; an
// empty caption hides the field.
struct Figure {
    const char* listText;
    const char* title;
    const char* captions[5];
};

const std::vector<Figure>& FigureCatalogue();
QString FigureTitle(const Figure& figure);

// The note on the formulas, behind the small book button of both windows.
QString FormulaNote();

}  // namespace tavrin
