// The pictures of Ball Drop, one a mode, chosen from a list.

#include "frame/form.h"
#include "frame/form_registry.h"

namespace tavrin {

namespace {

const char* const kPictures[] = {"imgSC", "imgHoledepth", "imgChamfer", "imgAngDist"};

void ShowChosen(Form& f) {
    const int chosen = f.listIndex("cboBallView");
    for (int i = 0; i < 4; ++i) {
        f.setVisible(kPictures[i], i == chosen);
    }
}

void Build(Form& f) {
    Control& view = f.add(ControlKind::DropDownList, "cboBallView");
    view.items =
        QStringList{"Sharp Corner & Ball Drop", "Hole Depth", "Chamfer Diameter", "Angle Length"};
    view.widthChars = 26;
    f.addRow(RowKind::Line, {"cboBallView"});
    f.addImage("imgSC", "ball_drop_sharp_corner");
    f.addImage("imgHoledepth", "ball_drop_hole_depth");
    f.addImage("imgChamfer", "ball_drop_chamfer");
    f.addImage("imgAngDist", "ball_drop_angle_length");
    // Four pictures on one spot: only the chosen one shows.
    f.addRow(RowKind::Line, {"imgSC", "imgHoledepth", "imgChamfer", "imgAngDist"});
    f.onLoad([](Form& f) {
        f.setVisible("imgHoledepth", false);
        f.setVisible("imgChamfer", false);
        f.setVisible("imgAngDist", false);
        f.setListIndex("cboBallView", 0);
    });
    f.onClick("cboBallView", ShowChosen);
}

const FormRegistration registration("frmBDImage", Build);

}  // namespace

}  // namespace tavrin
