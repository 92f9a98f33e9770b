#pragma once

#include <QJsonValue>
#include <QString>
#include <utility>
#include <vector>

namespace tavrin {

// A JSON object whose keys are written in the order they were added.
class JsonLine {
  public:
    JsonLine& add(const QString& key, const QJsonValue& value) {
        fields_.emplace_back(key, value);
        return *this;
    }
    QByteArray toUtf8() const;

  private:
    std::vector<std::pair<QString, QJsonValue>> fields_;
};

// Reads one JSON string literal ("a\r\nb"); false when the text is not one.
bool ParseJsonString(const QString& literal, QString& out);

}  // namespace tavrin
