#include "frame/angles.h"

#include "frame/numeric_text.h"

namespace tavrin {

namespace {

// Blanks only, as the packed entries have always been trimmed.
QString TrimBlanks(const QString& text) {
    int first = 0;
    int last = static_cast<int>(text.size()) - 1;
    while (first <= last && text[first] == u' ') {
        ++first;
    }
    while (last >= first && text[last] == u' ') {
        --last;
    }
    return text.mid(first, last - first + 1);
}

bool HasNoFraction(const QString& text) {
    return !text.contains(u'.') || text.endsWith(u'.');
}

}  // namespace

Real Pi() {
    return 3.14159265358979;
}

Real Negate(Real x) {
    return x - (x + x);
}

Real Square(Real x) {
    return x * x;
}

Real SquareOfText(const QString& text) {
    return ValOf(text) * ValOf(text);
}

Real PercentOf(Real a, Real b) {
    return (a * b) / 100;
}

Real SinDeg(Real degrees) {
    return Sin((Pi() * degrees) / 180);
}

Real CosDeg(Real degrees) {
    return Cos((Pi() * degrees) / 180);
}

Real TanDeg(Real degrees) {
    return Tan((Pi() * degrees) / 180);
}

Real AtanDeg(Real x) {
    return Atn(x) * 57.2957795130823;
}

Real ArcSinDeg(Real x) {
    const Real t = Sqr(Negate(x) * x + 1);
    return ((Atn(x / t)) * 180) / Pi();
}

Real ArcCosDeg(Real x) {
    const Real t = Sqr(Negate(x) * x + 1);
    const Real q = Atn(1);
    const Real a = ((Atn(Negate(x) / t)) * 180) / Pi();
    const Real b = ((q + q) * 180) / Pi();
    return a + b;
}

QString DmsTextToDd(const QString& entry) {
    QString text = entry;
    Real degrees;
    Real minutes = 0;
    Real seconds = 0;
    if (HasNoFraction(text)) {
        degrees = ValOf(text);
    } else {
        const int p = static_cast<int>(text.indexOf(u'.'));
        // One digit after the point is tens of minutes, three digits end in
        // tens of seconds.
        const int tail = static_cast<int>(TrimBlanks(text.mid(p)).size());
        if (tail == 2 || tail == 4) {
            text += u'0';
        }
        minutes = ValOf(text.mid(p + 1, 2));
        seconds = ValOf(text.mid(p + 3, 2));
        seconds = seconds / 3600;
        minutes = minutes / 60;
        degrees = ValOf(text.left(p));
    }
    // The sign of the degrees does not reach the minutes: "-22.3" is -21.5.
    Real sum = (degrees + minutes) + seconds;
    sum = RoundTo(sum, 6);
    return NumToStr(sum);
}

QString DdToDmsText(const QString& text) {
    QString degreeText;
    Real minutes = 0;
    Real seconds = 0;
    if (HasNoFraction(text)) {
        degreeText = text.endsWith(u'.') ? text.left(text.size() - 1) : text;
    } else {
        const int p = static_cast<int>(text.indexOf(u'.'));
        degreeText = TrimBlanks(text.left(p));
        if (degreeText.isEmpty()) {
            degreeText = QStringLiteral("0");
        }
        const Real m = ValOf(u'.' + text.mid(p + 1)) * 60;
        // Split the 15-digit text of m, so that 20.999999999999996 is 21.
        const QString s = NumToStr(m);
        const int q = static_cast<int>(s.indexOf(u'.'));
        if (q >= 0) {
            seconds = ValOf(s.mid(q)) * 60;
            minutes = ValOf(s.left(q));
        } else {
            minutes = m;
        }
        // No carry: 60 seconds stand as they are.
        seconds = RoundTo(seconds, 0);
    }
    return degreeText + kDegreeSign + u' ' + NumToStr(minutes) + u'\'' + u' ' + NumToStr(seconds) +
           u'"';
}

}  // namespace tavrin
