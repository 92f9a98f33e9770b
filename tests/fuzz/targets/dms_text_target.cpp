// DMS text: DmsTextToDd and DdToDmsText of any text. Both raise nothing but an
// overflow; a plain packed entry gives its degrees, minutes and seconds summed,
// a plain decimal entry its minutes and whole seconds, and a packed angle
// converted there and back keeps its seconds (60 of them standing for a
// minute, as there is no carry).

#include "frame/angles.h"
#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

// Degrees, minutes and seconds out of a DdToDmsText answer, the degree text
// as it stands; false when the answer is not of that form.
bool SplitDms(const QString& answer, QString& degrees, long long& minutes, long long& seconds) {
    static const QRegularExpression dms(
        QString("\\A(.*)%1  ([0-9]+)'  ([0-9]+)\"\\z").arg(kDegreeSign));
    const QRegularExpressionMatch m = dms.match(answer);
    degrees = m.captured(1);
    minutes = m.captured(2).toLongLong();
    seconds = m.captured(3).toLongLong();
    return m.hasMatch();
}

void CheckToDd(const QString& text) {
    QString dd;
    if (ErrorOf([&] { dd = DmsTextToDd(text); }, {6}, "DmsTextToDd raises only Overflow", text)) {
        return;
    }
    FUZZ_EXPECT(NumToStr(ValOf(dd)) == dd, text, dd);  // an answer text, sign column and all
    static const QRegularExpression packed(QStringLiteral("\\A(-?[0-9]{1,3})\\.([0-9]{1,6})\\z"));
    const QRegularExpressionMatch m = packed.match(text);
    if (!m.hasMatch()) {
        return;
    }
    // One digit is tens of minutes; three end in tens of seconds.
    QString fraction = m.captured(2);
    if (fraction.size() == 1 || fraction.size() == 3) {
        fraction += u'0';
    }
    const long double expected = m.captured(1).toLongLong() +
                                 fraction.mid(0, 2).toLongLong() / 60.0L +
                                 fraction.mid(2, 2).toLongLong() / 3600.0L;
    const long double got = ValOf(dd).value();
    FUZZ_EXPECT(std::fabs(got - expected) <= 5.0000001e-7L, text, dd);
}

void CheckToDms(const QString& text) {
    QString dms;
    if (ErrorOf([&] { dms = DdToDmsText(text); }, {6}, "DdToDmsText raises only Overflow", text)) {
        return;
    }
    FUZZ_EXPECT(dms.endsWith(u'"') && dms.contains(kDegreeSign), text, dms);
    static const QRegularExpression decimal(QStringLiteral("\\A(-?[0-9]{1,3})\\.([0-9]{1,12})\\z"));
    const QRegularExpressionMatch m = decimal.match(text);
    if (!m.hasMatch()) {
        return;
    }
    QString degrees;
    long long minutes = 0;
    long long seconds = 0;
    FUZZ_EXPECT(SplitDms(dms, degrees, minutes, seconds), text, dms);
    FUZZ_EXPECT(degrees == m.captured(1), text, dms);
    FUZZ_EXPECT(minutes <= 59 && seconds <= 60, text, dms);
    const QString fraction = m.captured(2);
    const long double exactSeconds =
        fraction.toLongLong() * 3600.0L / std::pow(10.0L, static_cast<int>(fraction.size()));
    FUZZ_EXPECT(std::fabs(minutes * 60 + seconds - exactSeconds) <= 0.500001L, text, dms);
}

void CheckThereAndBack(const QString& text) {
    static const QRegularExpression angle(
        QStringLiteral("\\A([0-9]{1,3})\\.([0-5][0-9])([0-5][0-9])\\z"));
    const QRegularExpressionMatch m = angle.match(text);
    if (!m.hasMatch()) {
        return;
    }
    const QString back = DdToDmsText(DmsTextToDd(text));
    QString degrees;
    long long minutes = 0;
    long long seconds = 0;
    FUZZ_EXPECT(SplitDms(back, degrees, minutes, seconds), text, back);
    FUZZ_EXPECT(degrees.trimmed().toInt() == m.captured(1).toInt(), text, back);
    FUZZ_EXPECT(minutes * 60 + seconds == m.captured(2).toInt() * 60 + m.captured(3).toInt(), text,
                back);
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = tavrin::fuzz::TextOf(data, size);
    tavrin::fuzz::CheckToDd(text);
    tavrin::fuzz::CheckToDms(text);
    tavrin::fuzz::CheckThereAndBack(text);
    return 0;
}
