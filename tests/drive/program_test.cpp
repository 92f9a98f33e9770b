// tavrin-drive's path and save, and the events of the three program buttons:
// the protocol only, the reading itself is tested beside the reader.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;

TEST(DrivePrograms, PathGivesEachHoleOfASixHoleCircleWhereTheListPutsIt) {
    const auto s = Drive(
        "open frmBoltCircle\nset frmBoltCircle.Text1 \"2\"\nset frmBoltCircle.Text2 \"6\"\n"
        "set frmBoltCircle.Text3 \"0\"\nset frmBoltCircle.Text4 \"0\"\n"
        "set frmBoltCircle.Text5 \"0\"\nclick frmBoltCircle.Command1\npath frmBoltCircle.Text7\n");
    EXPECT_EQ(s.exitCode, 0);
    // 60 degrees apart on a radius of 1, from 3 o'clock, to four places.
    const double holes[6][2] = {{1, 0},  {0.5, 0.866},   {-0.5, 0.866},
                                {-1, 0}, {-0.5, -0.866}, {0.5, -0.866}};
    ASSERT_EQ(s.lines.size(), 6);
    for (int i = 0; i < 6; ++i) {
        const QJsonObject o = QJsonDocument::fromJson(s.lines[i].toUtf8()).object();
        EXPECT_EQ(o["kind"].toString(), "hole");
        EXPECT_EQ(o["number"].toInt(), i + 1);
        EXPECT_EQ(o["to"].toArray(), QJsonArray({holes[i][0], holes[i][1], 0})) << s.lines[i];
    }
}

TEST(DrivePrograms, PathSaveAndTheButtonsOfABox) {
    QTemporaryDir dir;
    const QByteArray name = dir.filePath("p").toUtf8();
    const auto s = Drive(
        "open frmBoltCircle\nset frmBoltCircle.Text7 \"G00 X1 Y0\\r\\nG02 X0 Y1 J1\\r\\nQ\"\n"
        "path frmBoltCircle.Text7\nclick frmBoltCircle.cmdSaveAs\nclick frmBoltCircle.cmdCopy\n"
        "click frmBoltCircle.cmdViewPath\nsave frmBoltCircle.Text7 \"" +
        name + "\"\n");
    EXPECT_EQ(s.lines,
              QStringList({
                  R"({"kind": "rapid", "from": [1,0,0], "to": [1,0,0], "centre": null, "line": 1})",
                  R"({"kind": "cw", "from": [1,0,0], "to": [0,1,0], "centre": [1,1,0], "line": 2})",
                  R"({"problem": "Q has no number", "line": 3})",
                  R"({"event": "save", "file": ""})",  // cancelled
                  R"({"event": "clipboard", "text": "G00 X1 Y0\r\nG02 X0 Y1 J1\r\nQ"})",
                  R"({"event": "plot", "title": "Bolt Circle: Path", "moves": 2, "problems": 1})",
                  R"({"event": "saved", "file": ")" + name + R"(.nc"})",
              }));
    EXPECT_TRUE(QFile::exists(name + ".nc"));
}

TEST(DrivePrograms, BadArgumentsAreErrors) {
    const std::vector<std::pair<QByteArray, QString>> cases{
        {"path frmBoltCircle", "expected FORM.CONTROL, not frmBoltCircle"},
        {"path frmNowhere.Text7", "no window frmNowhere"},
        {"save frmBoltCircle.Text9 \"a\"", "no control Text9 on frmBoltCircle"},
        {"path frmBoltCircle.Command1", "frmBoltCircle.Command1 is not a text box"},
        {"save frmBoltCircle.Text7 a", "expected a file name as a JSON string, not a"},
        {"save frmBoltCircle.Text7 \"\"", R"(expected a file name as a JSON string, not \"\")"},
    };
    for (const auto& [command, why] : cases) {
        const auto s = Drive("open frmBoltCircle\n" + command + "\nshow frmHome\n");
        EXPECT_EQ(s.exitCode, 2) << command.constData();
        EXPECT_EQ(s.lines, QStringList(R"({"event": "error", "text": ")" + why + "\"}"))
            << command.constData();
    }
}

}  // namespace
