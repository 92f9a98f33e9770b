// Conversions: one directed pair of units at a time, by the wall chart.

#include "reference/conversions.h"

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"

namespace tavrin {

namespace {

std::vector<const Conversion*> RowsOf(UnitType type) {
    std::vector<const Conversion*> rows;
    for (const Conversion& c : ConversionTable()) {
        if (c.type == type) {
            rows.push_back(&c);
        }
    }
    return rows;
}

}  // namespace

QStringList PairTexts(UnitType type) {
    QStringList texts;
    for (const Conversion* c : RowsOf(type)) {
        texts << QString::fromUtf8(c->from) + "->" + QString::fromUtf8(c->to);
    }
    return texts;
}

Real Converted(UnitType type, int pair, Real x) {
    const std::vector<const Conversion*> rows = RowsOf(type);
    if (pair < 0 || pair >= static_cast<int>(rows.size())) {
        return 0;
    }
    const Conversion& c = *rows[pair];
    return c.formula != nullptr ? c.formula(x) : x * c.factor;
}

QString ConversionAnswer(const QString& pairText, Real r) {
    const QString unit = pairText.mid(pairText.indexOf('>') + 1);
    return unit + "= " + NumToStr(RoundTo(r, 4));
}

namespace {

const char* const kUnitTypes[] = {"Length", "Force",       "Angle",    "Power", "Speed",
                                  "Volume", "Temperature", "Pressure", "Area",  "Mass"};

void UnitTypeClick(Form& f) {
    f.clearList("lstUnitToConv");
    const int type = f.listIndex("popUnitType");
    if (type >= 0) {
        for (const QString& pair : PairTexts(static_cast<UnitType>(type))) {
            f.addItem("lstUnitToConv", pair);
        }
        f.setListIndex("lstUnitToConv", 0);
    }
    f.setText("txtConvAns", QString());
}

void Convert(Form& f) {
    if (!IsNumberText(f.text("txtToConvert"))) {
        ProgramMessage(f, "Error, Invalid input");
        return;
    }
    const Real x = ValOf(f.text("txtToConvert"));
    const int type = f.listIndex("popUnitType");
    if (type < 0) {
        ProgramMessage(f, "Error, Please select unit type.");
        return;
    }
    const Real r = Converted(static_cast<UnitType>(type), f.listIndex("lstUnitToConv"), x);
    f.setText("txtConvAns", ConversionAnswer(f.listText("lstUnitToConv"), r));
}

void Build(Form& f) {
    f.setTitle("Conversions");
    Control& types = f.add(ControlKind::Combo, "popUnitType");
    for (const char* type : kUnitTypes) {
        types.items << type;
    }
    f.addRow(RowKind::Line, {"popUnitType"});
    f.add(ControlKind::ListBox, "lstUnitToConv").heightLines = 8;
    f.addRow(RowKind::Line, {"lstUnitToConv"});
    f.addField("Label1", "Value to Convert", "txtToConvert");
    f.addAnswerLine("txtConvAns").widthChars = 24;
    f.addRow(RowKind::Line, {"txtConvAns"});
    f.addButton("Command1", "Convert");
    f.addRow(RowKind::Buttons, {"Command1"});

    f.onLoad([](Form& f) {
        f.clearList("lstUnitToConv");
        f.setListIndex("popUnitType", 0);
        f.setListIndex("lstUnitToConv", 0);
    });
    f.onClick("popUnitType", UnitTypeClick);
    f.onClick("Command1", Convert);
}

const FormRegistration registration("frmConversions", Build);

}  // namespace

}  // namespace tavrin
