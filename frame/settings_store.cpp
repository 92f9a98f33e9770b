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
    settings_->setValue(Path(section, key), value);
    settings_->sync();
}

}  // namespace tavrin
