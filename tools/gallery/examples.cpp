#include "tools/gallery/examples.h"

namespace tavrin {

const std::vector<Example> kExamples = {
    {"frmSfmToRpm", {"txtSfm=300", "txtDia=0.5"}, "Command1"},
    {"frmTrig", {"txtSideOne=5", "txtSideTwo=3"}, "Command1"},
    {"frmBoltCircle", {"Text1=4", "Text2=8", "Text3=0", "Text4=0", "Text5=0"}, "Command1"},
    {"frmOblique", {"txtO_Side_a=8", "txtO_Side_b=6", "txtO_Angle_A=40"}, "cmdOblCalc"},
    {"frmDDtoDMS", {"txtDD1=22.5"}, "Command1"},
    {"frmBallDrop",
     {"txtAngDrop=45", "txtBallDrop=.5", "txtDropOrDia=.625", "txtThruHole=.25"},
     "Command1"},
    {"frmConversions", {"txtToConvert=1"}, "Command1"},
    {"frmWeight", {"txtLengthW=12", "txtDiaW=1", "txtQtyW=10", "txtCost=2"}, "Command1"},
    {"frmTap", {"txtTapSize=.25", "txtPitch=20"}, "Command1"},
    {"frmDrillTip", {"txtDrillDiam=.5", "txtDrillAngle=118"}, "Command1"},
    {"frmCounterSink", {"txtDiameter=.5", "txtAngle=82"}, "Command1"},
    {"frmIpmIpr", {"txtCutter=.5", "txtChipLoad=10", "txtFlutes=2", "txtSfm2=100"}, "Command1"},
    {"frmCusp", {"txtRadCusp=.25", "txtStepOrCusp=.1"}, "Command1"},
    {"frmTRC", {"txtTrc1=.1", "txtTrc2=30"}, "Command1"},
    {"frmIK", {"txtXik=.1", "txtZik=.2", "txtradik=.25"}, "Command1"},
    {"frmGrid", {"txtX=0", "txtY=0", "txtHx=3", "txtHy=2", "txtXstep=1", "txtYstep=1"}, "Command1"},
    {"frmThdMill",
     {"fld_TM_Xpos=0", "fld_TM_Ypos=0", "fld_TM_ZStart=.1", "fld_TM_Depth=.5", "fld_TM_Major=1",
      "fld_TM_ToolDia=.5", "fld_TM_Pitch=.0625", "fld_TM_Feed=5"},
     "Command1"},
    {"frmLatheDrill",
     {"fldx_start=1", "fldz_start=.1", "fldz_depth=.5", "fldq_peck=.2", "fld_chipclearance=.02",
      "fld_feedrate=.004", "fldr_plane=.05"},
     "Command1"},
    {"frmLatheThread",
     {"fldLT_Major=.5", "fldLT_tpu=20", "fldLT_xstart=.6", "fldLT_zstart=.1", "fldLT_zdist=-.75"},
     "Command1"},
    // Three points probed on a 1.5 radius pocket wall.
    {"frmArcCenter",
     {"txtX1A=0", "txtY1A=0", "txtX2A=1.5", "txtY2A=1.5", "txtX3A=3", "txtY3A=0"},
     "Command1"},
    {"frmMidTwoPoints", {"txtX1M=1.25", "txtY1M=.5", "txtX2M=3.75", "txtY2M=2"}, "Command1"},
    {"frmDistTwoPoints", {"txtX1D=.5", "txtY1D=.75", "txtX2D=2.875", "txtY2D=3.125"}, "Command1"},
    {"frmInclineOfLine",
     {"txtXIncline1=0", "txtYIncline1=0", "txtXIncline2=3", "txtYIncline2=1.25"},
     "Command1"},
    // Where a 30 degree chamfer line crosses a face line.
    {"frmIntersect",
     {"txtX1=0", "txtY1=0", "txtX2=4", "txtY2=2.3094", "txtX3=0", "txtY3=1.5", "txtX4=4",
      "txtY4=1.5"},
     "Command1"},
    // Across the flats of a 3/4 square bar.
    {"frmPolygons", {"txtPol2=.75"}, "Command1"},
    // A 2 inch radius cut through 60 degrees: the chord.
    {"frmCircSegments", {"txtRadius=2", "txtAng=60"}, "Command1"},
    // A shaft's circumference read off a pi tape: its radius.
    {"frmCircleData", {"txtInput=12.5664"}, "Command1"},
    {"frmPolar",
     {"txtPolarInput1=2.5", "txtPolarInput2=30", "txtXPolarPresent=1", "txtYPolarPresent=1"},
     "Command1"},
    {"frmCirDivided", {"txtCirDivAng=15", "txtCirDivPos=6"}, "Command1"},
    {"frmARA", {"txtA1ara=30", "txtA2ara=45", "txtRadara=.25"}, "Command1"},
    {"frmAra2",
     {"txtHgt1Rar2=.5", "txtAng1Rar2=30", "txtHgt2Rar2=.75", "txtAng2Rar2=45", "txtRadRar2=.125"},
     "Command1"},
    {"frmradpRadrad", {"txtRad1RR=.75", "txtRad2RR=.25", "txtHorWRR=.5"}, "Command1"},
    {"frmRadToRad", {"txtRR1=.25", "txtRR2=1.5", "txtRRLength=1"}, "Command1"},
    {"frmTwoAngle", {"txtAng1op=30", "txtAng2op=60", "txtRadop=.125"}, "Command1"},
    {"frmRadAng", {"txtradar=.031", "txtangar=30"}, "Command1"},
    // A 1/64 nose radius on a 45 degree chamfer.
    {"frmTipLoss", {"txtradtl=.0156", "txtangtl=45"}, "Command1"},
    {"frmTruePos", {"txtXpos=.002", "txtYpos=.003"}, "Command1"},
    {"frmSinePlate", {"SinePlateLength=5", "AngleIncline=15"}, "Command1"},
    {"frmBallSub",
     {"txtSmBall=.25", "txtLaBall=.5", "txtAngBall=60", "txtDistance=.3"},
     "Command1"},
    // An 82 degree countersink, 41 a side.
    {"frmMinMaxBall", {"txtAngMinMax=41", "txtThruMinMax=.25", "txtSCMinMax=.5"}, "Command1"},
    // A Morse taper's small end, taper per foot and length.
    {"frmTapers", {"txt1=.475", "txt2=.6", "txt3=2.5"}, "Command1"},
    // Ball tops over the face of a 10 degree a side taper.
    {"frmFaceToBall", {"txtSB=.25", "txtLB=.5", "txtSBpos=.3", "txtLBpos=1.145"}, "Command1"},
    {"frmBallToBall", {"txtSB2=.25", "txtLB2=.5", "txtSizeBetween=1"}, "Command1"},
    {"frmPinInaDiamond", {"txtDiamond1=.5", "txtDiamond2=.5"}, "Command1"},
    // A 60 degree dove tail, 2 inches at the sharp corner, over .25 rolls.
    {"frmRoll",
     {"txtSizeRoll=2", "txtAngleRoll=60", "txtRollRoll=.25", "txtRiserRoll=0"},
     "Command1"},
    // A 1/2-20 thread over three .0289 wires: the pitch diameter.
    {"frmThreeWire", {"txtTPI=20", "txtWireSize=.0289", "txtPitchOrOverWire=.5109"}, "Command1"},
};

// A cylinder of bar stock, 3/4 radius by 4 long.
const int kFigureRow = 9;
const Example kFigureExample = {"form2", {"Text1=.75", "Text2=4"}, "Command1"};

}  // namespace tavrin
