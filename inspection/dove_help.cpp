// Dove Tail Help: five pictures, read from files in the program's folder.

#include <QFile>

#include "frame/app.h"
#include "frame/form.h"
#include "frame/form_registry.h"
#include "inspection/dove_tails.h"

namespace tavrin {

PictureFile CheckBitmapFile(const QString& path) {
    QFile file(path);
    if (!file.exists()) {
        return PictureFile::Missing;
    }
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != "BM") {
        return PictureFile::Unreadable;
    }
    return PictureFile::Found;
}

namespace {

const char* const kFiles[] = {"sc_or.bmp", "id over rolls.bmp", "angle_plane.bmp",
                              "angle_planeID.bmp", "riser.bmp"};

// A picture that cannot be read is told, and the window stays open.
void ShowChosen(Form& f) {
    const int chosen = f.listIndex("popDps");
    if (chosen < 0 || chosen > 4) {
        return;
    }
    const QString path = f.app().programFolder + "/" + kFiles[chosen];
    switch (CheckBitmapFile(path)) {
        case PictureFile::Found:
            f.setPicture("Image1", path);
            break;
        case PictureFile::Missing:
            f.setPicture("Image1", QString());
            ProgramMessage(f, "Error, Missing the picture file or the name of it was changed!");
            break;
        case PictureFile::Unreadable:
            ProgramMessage(f, "An error has ocuured loading the picture.");
            break;
    }
}

void Build(Form& f) {
    f.setTitle("Dove Tail Help");
    Control& pictures = f.add(ControlKind::Combo, "popDps");
    pictures.items = QStringList{"Over Rolls or S/C Outside", "Over Rolls or S/C Inside",
                                 "Angle Plane External", "Angle Plane Internal", "Roll Position"};
    pictures.widthChars = 26;
    f.addRow(RowKind::Line, {"popDps"});
    f.addImage("Image1", QString());
    f.addRow(RowKind::Line, {"Image1"});
    f.onLoad([](Form& f) { f.setListIndex("popDps", 0); });
    f.onClick("popDps", ShowChosen);
}

const FormRegistration registration("frmDoveHelp", Build);

}  // namespace

}  // namespace tavrin
