// Material Weight & Length: the weight, stock length and cost of bar stock.

#include "reference/weight.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "frame/numeric_text.h"
#include "frame/window_kit.h"

namespace tavrin {

namespace {

// Pounds per foot of a bar of unit size.
struct StockShape {
    const char* item;
    const char* sizeCaption;
    bool hasHeight;
    double steel;
    double aluminium;
};

const StockShape kShapes[] = {
    {"Round Stock", "Diameter", false, 2.6729, 0.924},
    {"Flat Stock", "Width", true, 3.4032, 1.18},
    {"Square Stock", "Square Size", false, 3.4032, 1.18},
    {"Hexagon Stock", "Hex Size", false, 2.9473, 1.02},
    {"Octagon Stock", "Oct Size", false, 2.8193, 0.974},
};

}  // namespace

Real PieceWeight(Stock shape, bool steel, Real size, Real height, Real length) {
    const StockShape& s = kShapes[static_cast<int>(shape)];
    const Real k = steel ? s.steel : s.aluminium;
    const Real m =
        shape == Stock::Flat ? k * size * height / 12 * length : Square(size) * k / 12 * length;
    return ValOf(NumToStr(RoundTo(m, 2)));
}

QString WeightAnswer(Real w, Real length, Real qty, Real cost) {
    return "Solid Weight[lbs]= " + NumToStr(RoundTo(w, 3)) + "\r\n" +
           "Solid Weight[kg]= " + NumToStr(RoundTo(w / 2.2046226, 3)) + "\r\n" +
           "Length[feet] = " + NumToStr(RoundTo((length * qty) / 12, 4)) + "\r\n" +
           "Length[meters]= " + NumToStr(RoundTo(((length * qty) / 12) * 0.3048, 4)) + "\r\n" +
           "Cost= $" + FormatNum(cost * w, "########.00") + "\r\n" + "Cost per Piece= $" +
           FormatNum((cost * w) / qty, "########.00");
}

namespace {

const QStringList kSizeFields{"txtLengthW", "txtDiaW", "txtThruW"};

void StockTypeClick(Form& f) {
    const int shape = f.listIndex("popStockType");
    if (shape < 0) {
        return;
    }
    f.setCaption("Field1667", kShapes[shape].sizeCaption);
    f.setVisible("txtHeightW", kShapes[shape].hasHeight);
    f.setVisible("Label1651", kShapes[shape].hasHeight);
}

bool AnySizeEmpty(const Form& f) {
    QStringList fields = kSizeFields;
    if (f.listIndex("popStockType") == static_cast<int>(Stock::Flat)) {
        fields << "txtHeightW";
    }
    for (const QString& name : fields) {
        if (f.text(name).isEmpty()) {
            return true;
        }
    }
    return false;
}

void Calculate(Form& f) {
    if (AnySizeEmpty(f)) {
        ProgramMessage(f, "Error, One or more data fields are empty.");
        return;
    }
    f.setText("txtWeightAns", "Calculating...");
    const bool steel = f.value("optSteel");
    const Real length = ValOf(f.text("txtLengthW"));
    const int shape = f.listIndex("popStockType");
    // A shape typed into the drop-down is no shape: nothing weighs.
    Real w = shape < 0 ? Real(0)
                       : PieceWeight(static_cast<Stock>(shape), steel, ValOf(f.text("txtDiaW")),
                                     ValOf(f.text("txtHeightW")), length);
    if (ValOf(f.text("txtThruW")) > 0) {
        // The hole is round whatever the bar is.
        w = w - PieceWeight(Stock::Round, steel, ValOf(f.text("txtThruW")), 0, length);
    }
    w = ValOf(f.text("txtQtyW")) * w;
    f.setText("txtWeightAns",
              WeightAnswer(w, length, ValOf(f.text("txtQtyW")), ValOf(f.text("txtCost"))));
}

// Thru hole and quantity stay empty too, not back at 0 and 1; the cost stays.
void ClearAll(Form& f) {
    EmptyTexts(f, {"txtLengthW", "txtDiaW", "txtThruW", "txtWeightAns", "txtHeightW", "txtQtyW"});
}

void Build(Form& f) {
    f.setTitle("Material Weight & Length");
    f.addLabel("Label2", "Shape-->");
    Control& shapes = f.add(ControlKind::Combo, "popStockType");
    for (const StockShape& s : kShapes) {
        shapes.items << s.item;
    }
    f.addRow(RowKind::Fields, {"Label2", "popStockType"});
    f.add(ControlKind::Frame, "Frame1", "Material");
    f.addOption("Frame1", "optSteel", "Steel", true);
    f.addOption("Frame1", "Option2", "Aluminium");
    f.addRow(RowKind::Group, {"Frame1", "optSteel", "Option2"});
    f.addField("Label1644", "Length", "txtLengthW");
    f.addField("Field1667", "Diameter", "txtDiaW");
    f.addField("Label1651", "Height", "txtHeightW");
    f.addField("Label1650", "Thru Hole", "txtThruW");
    f.addField("Label6", "Part Qty.", "txtQtyW");
    f.addField("Label5", "Cost per lb. ", "txtCost");
    f.addAnswerBox("txtWeightAns", 6).widthChars = 30;
    f.addRow(RowKind::Line, {"txtWeightAns"});
    f.addButton("Command1", "Calculate");
    f.addButton("Command2", "Clear All");
    f.addRow(RowKind::Buttons, {"Command1", "Command2"});

    f.onLoad([](Form& f) {
        f.setListIndex("popStockType", 0);
        f.setText("txtThruW", "0");
        f.setCaption("Field1667", "Diameter");
        f.setText("txtQtyW", "1");
        f.setText("txtCost", "0");
    });
    f.onClick("popStockType", StockTypeClick);
    f.onClick("Command1", Calculate);
    f.onClick("Command2", ClearAll);
}

const FormRegistration registration("frmWeight", Build);

}  // namespace

}  // namespace tavrin
