#include "frame/settings_store.h"

#include <QSettings>
#include <QStandardPaths>

namespace tavrin {

namespace {
QString Path(const QString& section, const QString& key) {
    return section + u'/' + key;
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
    if (settings_->status() != QSettings::NoError) {
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
