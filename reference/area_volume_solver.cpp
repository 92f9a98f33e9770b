// Area / Volume solver: one window for every figure of the catalogue. The
// figure is the row chosen in the catalogue window, read at every Calculate.

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"
#include "reference/figure_catalogue.h"
#include "reference/figures.h"

namespace tavrin {

const char* const kDefaultComplaint =
    "Error, Please fill all data fields with values greater than zero.";

int CountFilled(const FigureFields& f) {
    int n = 0;
    for (const Real& value : f.t) {
        n += value != 0 ? 1 : 0;
    }
    return n;
}

QString FigureLine(const char* label, Real value) {
    return label + FormatNum(RoundTo(value, 4), "#########0.0000");
}

FigureAnswer Refuse(const FigureBoxes& boxes, const QString& message, bool emptied) {
    boxes.message(message);
    return {emptied ? FigureAnswer::Kind::Empty : FigureAnswer::Kind::Keep, {}};
}

FigureAnswer Lines(const QString& text) {
    return {FigureAnswer::Kind::Text, text};
}

FigureAnswer SolveFigure(int number, const FigureFields& f, const FigureBoxes& boxes) {
    FigureAnswer answer;
    if (!SolvePlaneFigure(number, f, boxes, answer)) {
        SolveSolid(number, f, boxes, answer);
    }
    return answer;
}

namespace {

const char* const kFields[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};

// Every run-time fault inside is caught here: an impossible figure is told
// "Invalid Input!", never the fatal box.
void Calculate(Form& f) {
    const Form* catalogue = f.app().find("form1");
    const int number = catalogue != nullptr ? catalogue->listIndex("lstArea") : -1;
    if (number < 0) {
        return;  // the catalogue is closed: no figure, no word
    }
    const FigureBoxes boxes{
        [&f](const QString& text) { ProgramMessage(f, text); },
        [&f](const QString& text) { f.app().ui().message("IMPORTANT MESSAGE", text); }};
    try {
        FigureFields fields;
        for (int i = 0; i < 5; ++i) {
            fields.t[i] = ValOf(f.text(kFields[i]));
            fields.typed[i] = !f.text(kFields[i]).isEmpty();
        }
        const FigureAnswer answer = SolveFigure(number, fields, boxes);
        if (answer.kind != FigureAnswer::Kind::Keep) {
            f.setText("txtAns", answer.text);
        }
    } catch (const RunTimeError&) {
        ProgramMessage(f, "Invalid Input!");
        f.setText("txtAns", QString());
    }
}

void ClearAll(Form& f) {
    EmptyTexts(f, kFields);
    f.setText("txtAns", QString());
}

void Build(Form& f) {
    f.setTitle("Area / Volume");
    Control& title = f.addLabel("lblType", QString());
    title.centred = true;
    title.widthChars = 30;
    f.addRow(RowKind::Line, {"lblType"});
    // One size for every figure: hidden fields keep their places, captions one width.
    for (int i = 0; i < 5; ++i) {
        const QString label = QString("Label%1").arg(i + 1);
        Control& caption = f.addLabel(label, QString());
        caption.widthChars = 20;
        caption.keepsPlace = true;
        f.addTextBox(kFields[i]).keepsPlace = true;
        f.addRow(RowKind::Fields, {label, kFields[i]});
    }
    f.addAnswerBox("txtAns", 4).widthChars = 32;
    f.addRow(RowKind::Line, {"txtAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addButton("Command3", QString()).picture = "formula_note";
    f.addRow(RowKind::Buttons, {"Command1", "Command2", "Command3"});

    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
    f.onClick("Command3", [](Form& f) { ProgramMessage(f, FormulaNote()); });
}

const FormRegistration registration("form2", Build);

}  // namespace

}  // namespace tavrin
