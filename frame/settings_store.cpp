#include "frame/settings_store.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace tavrin {

namespace {
QString Path(const QString& section, const QString& key) {
    return section + u'/' + key;
}

// What the file itself holds under the key. It is read from a copy: every
// QSettings of one file shares what is still to be written to it, and keeps
// its first error (a damaged file read at the start) for good, so neither
// tells whether a later write reached the file.
QVariant ValueOnDisk(const QString& file, const QString& path) {
    QFile source(file);
    QTemporaryFile copy;
    if (!source.open(QIODevice::ReadOnly) || !copy.open()) {
        return {};
    }
    while (!source.atEnd()) {
        if (copy.write(source.read(1 << 16)) < 0) {
            return {};
        }
    }
    copy.flush();
    return QSettings(copy.fileName(), QSettings::IniFormat).value(path);
}
}  // namespace

QString MemorySettings::get(const QString& section, const QString& key, const QString& fallback) {
    return values_.value(Path(section, key), fallback);
}

void MemorySettings::save(const QString& section, const QString& key, const QString& value) {
    values_.insert(Path(section, key), value);
}

IniSettings::IniSettings(const QString& path)
    : settings_(std::make_unique<QSettings>(path, QSettings::IniFormat)) {}

IniSettings::~IniSettings() = default;

QString IniSettings::DefaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tavrin/Tavrin.ini");
}

QString IniSettings::get(const QString& section, const QString& key, const QString& fallback) {
    const QVariant v = settings_->value(Path(section, key));
    return v.isValid() ? v.toString() : fallback;
}

void IniSettings::save(const QString& section, const QString& key, const QString& value) {
    const QString path = Path(section, key);
    const QVariant before = settings_->value(path);
    settings_->setValue(path, value);
    settings_->sync();
    // QSettings writes a temporary file and renames it: the file holds either
    // the old texts or the new ones, never half of them.
    const bool written = settings_->status() == QSettings::NoError || [&] {
        const QVariant onDisk = ValueOnDisk(settings_->fileName(), path);
        return onDisk.isValid() && onDisk.toString() == value;
    }();
    if (!written) {
        // The write did not reach the file: take the value back, so that what
        // is read afterwards is what the file holds.
        if (before.isValid()) {
            settings_->setValue(path, before);
        } else {
            settings_->remove(path);
        }
    }
}

}  // namespace tavrin
