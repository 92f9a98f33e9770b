// The settings file: any bytes at all as the file. Its three numbers are read
// as the start reads them (a number, a type mismatch or an overflow, nothing
// else); a write then reaches the file, and the texts of the other keys stay
// as they were read.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "frame/numeric_text.h"
#include "frame/settings_store.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

const char* const kKeys[][2] = {{"Reg", "DecPlace"},  {"Xpos", "Xpos"},     {"Ypos", "Ypos"},
                                {"Quicklaunch", "1"}, {"Quicklaunch", "2"}, {"Quicklaunch", "3"},
                                {"Quicklaunch", "4"}};

QStringList ReadAll(IniSettings& settings) {
    QStringList texts;
    for (const auto& [section, key] : kKeys) {
        texts << settings.get(section, key, QStringLiteral("(default)"));
    }
    return texts;
}

void Check(const QByteArray& bytes) {
    // In memory where there is such a folder: QSettings writes through to the disk.
    static QTemporaryDir dir(QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                 ? QStringLiteral("/dev/shm/tavrin-fuzz-XXXXXX")
                                 : QDir::tempPath() + QStringLiteral("/tavrin-fuzz-XXXXXX"));
    static int run = 0;
    // A new name every run: QSettings keeps what it read of a file by its name.
    const QString path = dir.filePath(QStringLiteral("Tavrin%1.ini").arg(++run));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            return;
        }
    }
    const QString input = QString::fromLatin1(bytes.left(200).toPercentEncoding());
    QStringList before;
    {
        IniSettings settings(path);
        before = ReadAll(settings);
        for (int i = 0; i < 3; ++i) {
            ErrorOf([&] { StrictInt16(before[i]); }, {6, 13},
                    "a stored number is read or refused as a number", input);
        }
        settings.save(QStringLiteral("Quicklaunch"), QStringLiteral("2"),
                      QStringLiteral("Sine Plate"));
        FUZZ_EXPECT(settings.get("Quicklaunch", "2", "?") == QStringLiteral("Sine Plate"), input,
                    settings.get("Quicklaunch", "2", "?"));
    }
    // Read from a copy, so that the texts come from the disk, not from what
    // QSettings keeps of the file.
    const QString copy = path + QStringLiteral(".copy");
    QFile::copy(path, copy);
    IniSettings again(copy);
    QStringList after = ReadAll(again);
    QFile::remove(copy);
    before[4] = QStringLiteral("Sine Plate");
    FUZZ_EXPECT(after == before, input, after.join(u'|') + " against " + before.join(u'|'));
    QFile::remove(path);
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tavrin::fuzz::Check(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}
