#pragma once

#include <QString>

namespace tavrin {

// The logic writes CR LF lines; Qt's widgets and boxes want bare line feeds.
inline QString ForDisplay(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

// What a user typed into a multi-line box, back in the logic's CR LF lines.
inline QString FromDisplay(QString text) {
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

}  // namespace tavrin
