#include "frame/launch_tables.h"

namespace tavrin {

const std::vector<LaunchEntry>& LaunchList() {
    static const std::vector<LaunchEntry> list{
        {QStringLiteral("Ball Drop"), QStringLiteral("frmBallDrop")},
        {QStringLiteral("Ball Substitution"), QStringLiteral("frmBallSub")},
        {QStringLiteral("Circle Data"), QStringLiteral("frmCircleData")},
        {QStringLiteral("Circle Divided"), QStringLiteral("frmCirDivided")},
        {QStringLiteral("Circle Segments"), QStringLiteral("frmCircSegments")},
        {QStringLiteral("Countersink"), QStringLiteral("frmCounterSink")},
        {QStringLiteral("Cusp Height<-->Step Over"), QStringLiteral("frmCusp")},
        {QStringLiteral("DD <--> DMS"), QStringLiteral("frmDDtoDMS")},
        {QStringLiteral("Distance Between Two Points"), QStringLiteral("frmDistTwoPoints")},
        {QStringLiteral("Dove Tails"), QStringLiteral("frmRoll")},
        {QStringLiteral("Drill Tip Compensation"), QStringLiteral("frmDrillTip")},
        {QStringLiteral("Gage Pin in a Diamond Shape"), QStringLiteral("frmPinInaDiamond")},
        {QStringLiteral("I K - I J  Arc Center"), QStringLiteral("frmIK")},
        {QStringLiteral("Intersection of Two Lines"), QStringLiteral("frmIntersect")},
        {QStringLiteral("IPM <--> IPR"), QStringLiteral("frmIpmIpr")},
        {QStringLiteral("Material Weight & Length"), QStringLiteral("frmWeight")},
        {QStringLiteral("Middle of Two Points"), QStringLiteral("frmMidTwoPoints")},
        {QStringLiteral("Min. & Max. Ball Diameters"), QStringLiteral("frmMinMaxBall")},
        {QStringLiteral("Polar Coordinates"), QStringLiteral("frmPolar")},
        {QStringLiteral("Polygons"), QStringLiteral("frmPolygons")},
        {QStringLiteral("SFM <--> RPM"), QStringLiteral("frmSfmToRpm")},
        {QStringLiteral("Shift and Rotation of Points"), QStringLiteral("frmRotate")},
        {QStringLiteral("Sine Plate"), QStringLiteral("frmSinePlate")},
        {QStringLiteral("Slope and Angle of a Line"), QStringLiteral("frmInclineOfLine")},
        {QStringLiteral("Tangency Points & Distances"), QStringLiteral("frmTangency")},
        {QStringLiteral("Tap Drill Sizes"), QStringLiteral("frmTap")},
        {QStringLiteral("Tapers"), QStringLiteral("frmTapers")},
        {QStringLiteral("Three Point Arc Center"), QStringLiteral("frmArcCenter")},
        {QStringLiteral("Three Wire Check"), QStringLiteral("frmThreeWire")},
        {QStringLiteral("Tool Radius Compensation"), QStringLiteral("frmTRC")},
        {QStringLiteral("Trigonometry (Right and Oblique)"), QStringLiteral("frmTrigMain")},
        {QStringLiteral("True Position"), QStringLiteral("frmTruePos")},
        {QStringLiteral("Two Ball Angle Check [Ball to Ball]"), QStringLiteral("frmBallToBall")},
        {QStringLiteral("Two Ball Angle Check [Face to Ball]"), QStringLiteral("frmFaceToBall")},
    };
    return list;
}

QStringList LaunchListTexts() {
    QStringList texts;
    for (const LaunchEntry& e : LaunchList()) {
        texts << e.text;
    }
    return texts;
}

const std::vector<LaunchEntry>& QuickLauncherTable() {
    // Keyed by text, so that a stored slot survives any change in list order.
    static const std::vector<LaunchEntry> table = [] {
        std::vector<LaunchEntry> t = LaunchList();
        t.push_back({QStringLiteral("Bolt Circle"), QStringLiteral("frmBoltCircle")});
        t.push_back({QStringLiteral("Grid Hole Pattern"), QStringLiteral("frmGrid")});
        return t;
    }();
    return table;
}

QString DefaultQuickLauncherSlot(int slot) {
    switch (slot) {
        case 1:
            return QStringLiteral("Circle Segments");
        case 2:
            return QStringLiteral("Tapers");
        case 3:
            return QStringLiteral("Trigonometry (Right and Oblique)");
        case 4:
            return QStringLiteral("Polygons");
        default:
            return QString();
    }
}

}  // namespace tavrin
