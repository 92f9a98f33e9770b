// What tavrin-drive alone does: its commands, JSON lines and exit codes. The
// windows are only its stage; their answers are tested in their own suites.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;

QJsonObject Json(const QString& line) {
    return QJsonDocument::fromJson(line.toUtf8()).object();
}

// A list shows its chosen index and that item's text, or what was typed.
void ExpectList(const QString& line, int index, const QString& typed = {}) {
    const QJsonObject o = Json(line);
    EXPECT_EQ(o.keys(), QStringList({"control", "enabled", "index", "items", "text", "visible"}));
    EXPECT_EQ(o["index"].toInt(-9), index) << line;
    const QString chosen = index < 0 ? typed : o["items"].toArray().at(index).toString();
    EXPECT_EQ(o["text"].toString(), chosen) << line;
}

TEST(Drive, ShowSaysWhatEachKindOfControlHolds) {
    const auto s = Drive(
        "# a comment and a blank line are skipped\n\nopen frmThreeWire\n"
        "set frmThreeWire.txtTPI \"a\\\"b\\u00e9\\r\\n\"\nshow frmThreeWire.txtTPI\n"
        "click frmThreeWire.chkTWMet\nshow frmThreeWire.chkTWMet\n"
        "show frmThreeWire\nclose frmThreeWire\nshow frmThreeWire\n"
        "click frmHome.mnuSettings\nshow frmSettings.UpDown1\nshow frmHome.Image1\n"
        "type frmHome.Combo1 \"typed\"\nshow frmHome.Combo1\n"
        "select frmHome.lstSelection 0\nshow frmHome.lstSelection\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 8);
    const QString shown = R"(, "visible": true, "enabled": true)";
    EXPECT_EQ(s.lines[0],
              R"({"control": "frmThreeWire.txtTPI", "text": "a\"bé\r\n")" + shown + "}");
    EXPECT_EQ(s.lines[1], R"({"control": "frmThreeWire.chkTWMet", "caption": "Metric Input")" +
                              shown + R"(, "value": true})");
    EXPECT_EQ(s.lines[2],
              R"({"window": "frmThreeWire", "open": true, "title": "Three Wire Check"})");
    EXPECT_EQ(s.lines[3], R"({"window": "frmThreeWire", "open": false})");
    EXPECT_EQ(s.lines[4], R"({"control": "frmSettings.UpDown1")" + shown + "}");
    EXPECT_EQ(s.lines[5], R"({"control": "frmHome.Image1", "picture": "home")" + shown + "}");
    ExpectList(s.lines[6], -1, "typed");
    ExpectList(s.lines[7], 0);
}

TEST(Drive, BoxesAreEventsAndAFatalOneEndsTheRun) {
    const auto s = Drive(
        "open frmSfmToRpm\nclick frmSfmToRpm.optSfm\nclick frmSfmToRpm.Command1\n"
        "open frmThreeWire\nset frmThreeWire.txtTPI \"20\"\nset frmThreeWire.txtWireSize \".028\"\n"
        "set frmThreeWire.txtPitchOrOverWire \".2175\"\nanswer yes\nanswer no\n"
        "click frmThreeWire.Command1\nclick frmThreeWire.Command1\nclick frmThreeWire.Command1\n"
        "set frmSfmToRpm.txtSfm \"1E400\"\nset frmSfmToRpm.txtDia \"1\"\n"
        "click frmSfmToRpm.Command1\nshow frmHome\n");
    EXPECT_EQ(s.exitCode, 3);
    ASSERT_EQ(s.lines.size(), 5);
    EXPECT_EQ(s.lines[0], R"({"event": "message", "title": "Program Message", "text": )"
                          R"("You must fill both data fields."})");
    EXPECT_EQ(s.lines[1], R"({"event": "question", "title": "Incorrect wire size", "text": "You )"
                          R"(have entered an invalid wire size for the data entered, continue?", )"
                          R"("answer": "yes"})");
    EXPECT_EQ(Json(s.lines[2])["answer"].toString(), "no");
    EXPECT_EQ(Json(s.lines[3])["answer"].toString(), "no") << "with none queued the answer is No";
    EXPECT_EQ(s.lines[4], R"({"event": "fatal", "text": "Run-time error '6':\r\n\r\nOverflow"})");
}

TEST(Drive, WhatItCannotCarryOutIsAnErrorAndTheLastLine) {
    // Scripts split at "|" that give the same error.
    const std::pair<QByteArray, QString> cases[] = {
        {"open frmNowhere|show frmNowhere|click frmNowhere.Command1", "no window frmNowhere"},
        {"click frmSfmToRpm.Command1", "window frmSfmToRpm is not open"},
        {"click frmHome.Command9|show frmHome.Command9", "no control Command9 on frmHome"},
        {"click frmHome.", "expected FORM.CONTROL, not frmHome."},
        {"show .Command1", "expected FORM.CONTROL, not .Command1"},
        {"frobnicate x", "unknown command frobnicate"},
        {"answer maybe", "answer takes yes or no, not maybe"},
        {"set frmHome.Combo1 \"x\"", "frmHome.Combo1 does not take set"},
        {"type frmHome.Combo1 300", "expected a JSON string, not 300"},
        {"type frmHome.Combo1 \"3", R"(expected a JSON string, not \"3)"},
        {"type frmHome.Combo1 \"3\", \"0\"", R"(expected a JSON string, not \"3\", \"0\")"},
        {"click frmHome.lstSelection", "frmHome.lstSelection cannot be clicked"},
        {"select frmHome.Command1 0", "frmHome.Command1 is not a list"},
        {"select frmHome.lstSelection 34", "frmHome.lstSelection has no item 34"},
        {"select frmHome.lstSelection -1", "frmHome.lstSelection has no item -1"},
        {"select frmHome.lstSelection x", "frmHome.lstSelection has no item x"},
        {"spin frmHome.Command1 up", "spin takes a spin control and up or down"},
    };
    for (const auto& [scripts, why] : cases) {
        for (const QByteArray& script : scripts.split('|')) {
            const auto s = Drive(script + "\nshow frmHome\n");
            EXPECT_EQ(s.exitCode, 2) << script.constData();
            EXPECT_EQ(s.lines, QStringList(R"({"event": "error", "text": ")" + why + "\"}"))
                << script.constData();
        }
    }
    EXPECT_EQ(Drive("", {"--colour"}).exitCode, 2) << "an unknown argument";
}

// A loop without end is cut short: its window closed, the next command read.
TEST(Drive, ALoopWithoutEndClosesItsWindowAndTheFocusShows) {
    const auto s = Drive(
        "open frmGrid\nset frmGrid.txtX \"1\"\nset frmGrid.txtY \"1\"\nset frmGrid.txtXstep \"1\"\n"
        "set frmGrid.txtYstep \"1\"\nset frmGrid.txtHx \"-2\"\nset frmGrid.txtHy \"-3\"\n"
        "click frmGrid.Command1\nshow frmGrid\nopen frmCounterSink\n"
        "click frmCounterSink.Command1\nshow frmCounterSink.txtDiameter\n");
    EXPECT_EQ(
        s.lines.mid(0, 2),
        QStringList(
            {R"({"event": "closed", "window": "frmGrid", "text": "still running after 100000 passes"})",
             R"({"window": "frmGrid", "open": false})"}));
    EXPECT_TRUE(Json(s.lines.last())["focus"].toBool()) << s.lines.last().toStdString();
}

TEST(Drive, SettingsLiveInTheNamedFileAndClosingHomeEndsTheRun) {
    QTemporaryDir dir;
    const QStringList args{"--settings", dir.filePath("tavrin.ini")};
    const QByteArray settings = "click frmHome.mnuSettings\n";
    const QByteArray spin = "spin frmSettings.UpDown1 ";
    // From 4: down, up, up, so that each step moves one place its own way.
    const auto first = Drive(settings + spin + "down\n" + spin + "up\n" + spin + "up\n" +
                                 "click frmSettings.Command1\nclose frmHome\nshow frmHome\n",
                             args);
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(first.lines, QStringList(R"({"event": "end"})"));
    const auto second = Drive(settings + "show frmSettings.Text1\n", args);
    EXPECT_EQ(Json(second.lines.value(0))["text"].toString(), "5");

    QFile bad(dir.filePath("bad.ini"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly) && bad.write("[Reg]\nDecPlace=many\n") > 0 &&
                bad.flush());
    const auto start = Drive("show frmHome\n", {"--settings", bad.fileName()});
    EXPECT_EQ(start.exitCode, 3) << "a bad stored setting ends the run at start";
    EXPECT_TRUE(start.lines.size() == 1 && start.lines[0].startsWith(R"({"event": "fatal")"));
}

}  // namespace
