#pragma once

#include <QStringList>
#include <vector>

namespace tavrin {

// A worked example for a calculator: its fields as typed ("name=text"), then
// its button.
struct Example {
    const char* form;
    QStringList fields;
    const char* button;
};

// One job a machinist would type into each calculator, every one answering
// without a message box.
extern const std::vector<Example> kExamples;

// The Area / Volume solver answers for the figure chosen in its catalogue
// window ("form1", list "lstArea"): this row there first, then the example.
extern const int kFigureRow;
extern const Example kFigureExample;

}  // namespace tavrin
