#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/support/drive_session.h"

namespace {

using tavrin::testing::Drive;
using Session = tavrin::testing::DriveSession;

TEST(Drive, AnswersThroughTheSfmWindow) {
    const Session s = Drive(
        "open frmSfmToRpm\n"
        "set frmSfmToRpm.txtSfm \"300\"\n"
        "set frmSfmToRpm.txtDia \"0.5\"\n"
        "click frmSfmToRpm.Command1\n"
        "show frmSfmToRpm.lblRpm\n"
        "click frmSfmToRpm.optSfm\n"
        "show frmSfmToRpm.optSfm\n");
    EXPECT_EQ(s.exitCode, 0);
    ASSERT_EQ(s.lines.size(), 2);
    EXPECT_EQ(s.lines[0],
              "{\"control\": \"frmSfmToRpm.lblRpm\", \"text\": \"Revolutions Per Minute =  "
              "2291.8\", \"visible\": true, \"enabled\": true}");
    EXPECT_EQ(s.lines[1],
              "{\"control\": \"frmSfmToRpm.optSfm\", \"caption\": \"SFM\", \"visible\": true, "
              "\"enabled\": true, \"value\": true}");
}

TEST(Drive, PrintsMessagesAndTheFatalBox) {
    const Session s = Drive(
        "select frmHome.lstSelection 20\n"
        "set frmSfmToRpm.txtSfm \"abc\"\n"
        "set frmSfmToRpm.txtDia \"1\"\n"
        "click frmSfmToRpm.Command1\n"
        "set frmSfmToRpm.txtSfm \"300\"\n"
        "set frmSfmToRpm.txtDia \"1E400\"\n"
        "click frmSfmToRpm.Command1\n"
        "show frmSfmToRpm.lblRpm\n");
    EXPECT_EQ(s.exitCode, 3);
    ASSERT_EQ(s.lines.size(), 2);
    EXPECT_EQ(s.lines[0],
              "{\"event\": \"message\", \"title\": \"Program Message\", \"text\": \"Error, "
              "Values must be greater than zero.\"}");
    EXPECT_EQ(s.lines[1],
              "{\"event\": \"fatal\", \"text\": \"Run-time error '6':\\r\\n\\r\\nOverflow\"}");
}

TEST(Drive, RefusesWhatItCannotCarryOut) {
    const std::vector<std::pair<QByteArray, QString>> cases{
        {"open frmNowhere\n", "no window frmNowhere"},
        {"click frmSfmToRpm.Command1\n", "window frmSfmToRpm is not open"},
        {"open frmSfmToRpm\nclick frmSfmToRpm.Command9\n", "no control Command9 on frmSfmToRpm"},
        {"open frmSfmToRpm\nset frmSfmToRpm.txtSfm 300\n", "expected a JSON string, not 300"},
        {"frobnicate x\n", "unknown command frobnicate"},
        {"select frmHome.lstSelection 34\n", "frmHome.lstSelection has no item 34"},
    };
    for (const auto& [script, why] : cases) {
        const Session s = Drive(script);
        EXPECT_EQ(s.exitCode, 2) << script.constData();
        ASSERT_FALSE(s.lines.isEmpty()) << script.constData();
        EXPECT_EQ(s.lines.back(), "{\"event\": \"error\", \"text\": \"" + why + "\"}");
    }
}

TEST(Drive, KeepsSettingsInTheNamedFile) {
    QTemporaryDir dir;
    const QString ini = dir.filePath("tavrin.ini");
    const Session first = Drive("close frmHome\n", {"--settings", ini});
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(first.lines, QStringList({"{\"event\": \"end\"}"}));
    QFile file(ini);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString stored = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(stored.contains("[Xpos]\nXpos=3420")) << stored.toStdString();
    EXPECT_TRUE(stored.contains("[Ypos]\nYpos=5000")) << stored.toStdString();
}

TEST(Drive, ABadStoredSettingEndsAtStart) {
    QTemporaryDir dir;
    const QString ini = dir.filePath("tavrin.ini");
    QFile file(ini);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Reg]\nDecPlace=many\n");
    file.close();
    const Session s = Drive("show frmHome\n", {"--settings", ini});
    EXPECT_EQ(s.exitCode, 3);
    EXPECT_EQ(s.lines, QStringList({"{\"event\": \"fatal\", \"text\": \"Run-time error "
                                    "'13':\\r\\n\\r\\nType mismatch\"}"}));
}

}  // namespace
