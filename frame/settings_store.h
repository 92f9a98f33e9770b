#pragma once

#include <QHash>
#include <QString>
#include <memory>

class QSettings;

namespace tavrin {

// The per-user store: text values by section and key. A read names the
// default for a key that is absent; nothing is ever seeded.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    virtual QString get(const QString& section, const QString& key, const QString& fallback) = 0;
    virtual void save(const QString& section, const QString& key, const QString& value) = 0;
};

// Lives for one run only.
class MemorySettings : public SettingsStore {
  public:
    QString get(const QString& section, const QString& key, const QString& fallback) override;
    void save(const QString& section, const QString& key, const QString& value) override;

  private:
    QHash<QString, QString> values_;
};

// An INI file with a group per section, written at once on every save.
class IniSettings : public SettingsStore {
  public:
    explicit IniSettings(const QString& path);
    // The user's own file under the desktop's configuration folder.
    static QString DefaultPath();
    ~IniSettings() override;
    QString get(const QString& section, const QString& key, const QString& fallback) override;
    void save(const QString& section, const QString& key, const QString& value) override;

  private:
    std::unique_ptr<QSettings> settings_;
};

}  // namespace tavrin
