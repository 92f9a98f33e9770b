#include "tools/drive/json_line.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tavrin {

namespace {
QByteArray Encode(const QJsonValue& value) {
    // A one-element array is the shortest way to Qt's own escaping.
    QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}
}  // namespace

QByteArray JsonLine::toUtf8() const {
    QByteArray line = "{";
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (i > 0) {
            line += ", ";
        }
        line += Encode(fields_[i].first) + ": " + Encode(fields_[i].second);
    }
    return line + "}";
}

bool ParseJsonString(const QString& literal, QString& out) {
    QJsonParseError error{};
    const QJsonDocument doc =
        QJsonDocument::fromJson(QByteArray("[") + literal.toUtf8() + "]", &error);
    if (error.error != QJsonParseError::NoError || !doc.isArray() || doc.array().size() != 1 ||
        !doc.array().at(0).isString()) {
        return false;
    }
    out = doc.array().at(0).toString();
    return true;
}

}  // namespace tavrin
