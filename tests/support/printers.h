#pragma once

// Readable failure messages: texts print as text, not as arrays of QChar.

#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* os) {
    *os << '{';
    for (int i = 0; i < texts.size(); ++i) {
        *os << (i > 0 ? ", " : "") << '"' << texts[i].toStdString() << '"';
    }
    *os << '}';
}

// So that a failure can name its case: EXPECT_EQ(...) << name.
inline std::ostream& operator<<(std::ostream& os, const QString& text) {
    return os << text.toStdString();
}
