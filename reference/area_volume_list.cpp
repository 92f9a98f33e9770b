// Area / Volume: the catalogue of forty-one figures. A click on a row dresses
// the one solver window for that figure.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/window_kit.h"
#include "reference/figure_catalogue.h"

namespace tavrin {

namespace {

const char* const kFields[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};
const char* const kLabels[] = {"Label1", "Label2", "Label3", "Label4", "Label5"};

// The system keeps no pictures of the figures: this note stands in for them.
const char* const kFormulaNote =
    "Any edition of Machinery's Handbook has diagrams and formulas in math section (areas and "
    "volumes) to use as needed, Tavrin follows these diagrams.";

void DressSolver(Form& f) {
    Form& solver = f.app().load("form2");
    EmptyTexts(solver, kFields);
    solver.setText("txtAns", QString());
    const int number = f.listIndex("lstArea");
    if (number < 0) {
        return;
    }
    const Figure& figure = FigureCatalogue()[number];
    for (int i = 0; i < 5; ++i) {
        const bool used = figure.captions[i][0] != '\0';
        solver.setVisible(kLabels[i], used);
        solver.setVisible(kFields[i], used);
    }
    // The fifth caption is only ever set, by the trapezium, and stays unseen after it.
    for (int i = 0; i < 4; ++i) {
        solver.setCaption(kLabels[i], figure.captions[i]);
    }
    if (figure.captions[4][0] != '\0') {
        solver.setCaption("Label5", figure.captions[4]);
    }
    f.app().show("form2");
    solver.setCaption("lblType", FigureTitle(figure));
}

void Build(Form& f) {
    f.setTitle("Area / Volume");
    f.addLabel("Label1", "Area \\ Volume").centred = true;
    f.addRow(RowKind::Line, {"Label1"});
    Control& list = f.add(ControlKind::ListBox, "lstArea");
    for (const Figure& figure : FigureCatalogue()) {
        list.items << QString::fromUtf8(figure.listText);
    }
    list.heightLines = 16;
    list.widthChars = 28;
    f.addRow(RowKind::Line, {"lstArea"});
    f.addButton("Command3", QString()).picture = "formula_note";
    f.addRow(RowKind::Buttons, {"Command3"});

    f.onClick("lstArea", DressSolver);
    f.onClick("Command3", [](Form& f) { ProgramMessage(f, kFormulaNote); });
}

const FormRegistration registration("form1", Build);

}  // namespace

QString FormulaNote() {
    return kFormulaNote;
}

}  // namespace tavrin
