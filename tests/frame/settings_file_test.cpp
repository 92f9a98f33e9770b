// The settings file when it is damaged, huge or cannot be written: the
// program starts as the texts it can read say, and a write either reaches
// the file whole or leaves it as it was, the store then giving back what the
// file holds.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <tuple>

#include "tests/support/harness.h"

namespace tavrin {
namespace {

QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// Starts the program over the file: the places, the position and the first
// Quick Launcher item it comes up with, or the fatal box.
QString StartOver(IniSettings& settings) {
    RecordingUi ui;
    App app(ui, settings);
    app.splashEnabled = false;
    app.start();
    const Form& home = *app.find("frmHome");
    return ui.fatalTexts().isEmpty()
               ? QString("%1 %2 %3 ").arg(app.decPlace).arg(home.left()).arg(home.top()) +
                     home.control("Combo1").items.value(0)
               : ui.fatalTexts().join("");
}

QByteArray Utf16(const char* text) {
    QByteArray bytes("\xFF\xFE");  // the byte order mark of an editor's "Unicode"
    for (const char* c = text; *c != 0; ++c) {
        bytes.append(*c).append('\0');
    }
    return bytes;
}

QByteArray Junk() {
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i) {
        bytes.append(static_cast<char>((i * 7919 + 13) % 256));
    }
    return bytes;
}

TEST(SettingsFile, ADamagedFileGivesWhatCanBeReadAndTheNextWriteMendsIt) {
    const QString defaults = "4 3420 5000 Circle Segments";
    const std::tuple<const char*, QByteArray, QString> rows[] = {
        {"cut inside a number", "[Reg]\nDecPlace=6\n[Xpos]\nXpos=12", "6 12 5000 Circle Segments"},
        {"cut inside a key", "[Reg]\nDecPl", defaults},
        {"binary junk", Junk(), defaults},
        {"UTF-16: no key of ours", Utf16("[Reg]\r\nDecPlace=6\r\n"), defaults},
        {"a million digits are beyond 16 bits",
         "[Reg]\nDecPlace=" + QByteArray(1000000, '9') + '\n',
         "Run-time error '6':\r\n\r\nOverflow"},
        {"a million keys before ours",
         "[Other]\n" + QByteArray("k=v\n").repeated(1000000) + "[Ypos]\nYpos=-7\n",
         "4 3420 -7 Circle Segments"},
    };
    for (const auto& [kind, bytes, start] : rows) {
        QTemporaryDir dir;
        const QString path = dir.filePath("Tavrin.ini");
        Write(path, bytes);
        {
            IniSettings settings(path);
            EXPECT_EQ(StartOver(settings), start) << kind;
            settings.save("Quicklaunch", "2", "Sine Plate");
            EXPECT_EQ(settings.get("Quicklaunch", "2", "Tapers"), "Sine Plate") << kind;
        }
        IniSettings again(path);
        EXPECT_EQ(again.get("Quicklaunch", "2", "Tapers"), "Sine Plate") << kind;
    }
}

// Lowers the largest file this process may write, as a full disk would stop
// the write halfway. Unlike a read-only folder, it stops root too.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &saved_);
        rlimit lowered = saved_;
        lowered.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &lowered);
        std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead of the process
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, SIG_DFL);
    }

  private:
    rlimit saved_{};
};

TEST(SettingsFile, AWriteStoppedHalfwayLeavesTheFileAsItWas) {
    QTemporaryDir dir;
    const QString path = dir.filePath("Tavrin.ini");
    IniSettings settings(path);
    settings.save("Reg", "DecPlace", "6");
    const QByteArray before = Content(path);
    {
        const FileSizeLimit limit(before.size() + 8);
        settings.save("Quicklaunch", "2", "Sine Plate");
    }
    EXPECT_EQ(Content(path), before);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"Tavrin.ini"});  // no leftover
    EXPECT_EQ(settings.get("Quicklaunch", "2", "Tapers"), "Tapers");
    // Once the disk takes it, the next write goes through.
    settings.save("Quicklaunch", "3", "Polygons");
    EXPECT_EQ(settings.get("Quicklaunch", "3", "?") + settings.get("Reg", "DecPlace", "?"),
              "Polygons6");
    EXPECT_TRUE(Content(path).contains("3=Polygons"));
}

}  // namespace
}  // namespace tavrin
