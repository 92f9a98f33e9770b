// DMS text: DmsTextToDd and DdToDmsText of any text raise nothing but an
// overflow, and a packed angle converted there and back keeps its minutes and
// seconds (60 seconds may stand for a minute: there is no carry).

#include "frame/angles.h"
#include "frame/numeric_text.h"
#include "tests/fuzz/targets/fuzz_check.h"

namespace tavrin::fuzz {
namespace {

void Check(const QString& text) {
    QString dd;
    if (ErrorOf([&] { dd = DmsTextToDd(text); }, {6}, text) == 0) {
        FUZZ_EXPECT(NumToStr(ValOf(dd)) == dd, text, dd);  // an answer text, sign column and all
    }
    QString dms;
    if (ErrorOf([&] { dms = DdToDmsText(text); }, {6}, text) == 0) {
        FUZZ_EXPECT(dms.endsWith(u'"') && dms.contains(kDegreeSign), text, dms);
    }
    static const QRegularExpression packed(
        QStringLiteral("\\A([0-9]{1,3})\\.([0-5][0-9])([0-5][0-9])\\z"));
    const QRegularExpressionMatch m = packed.match(text);
    if (!m.hasMatch()) {
        return;
    }
    const QString back = DdToDmsText(dd);
    static const QRegularExpression split(
        QString("\\A *([0-9]+)%1  ([0-9]+)'  ([0-9]+)\"\\z").arg(kDegreeSign));
    const QRegularExpressionMatch b = split.match(back);
    FUZZ_EXPECT(b.hasMatch() && b.captured(1).toInt() == m.captured(1).toInt() &&
                    b.captured(2).toInt() * 60 + b.captured(3).toInt() ==
                        m.captured(2).toInt() * 60 + m.captured(3).toInt(),
                text, back);
}

}  // namespace
}  // namespace tavrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tavrin::fuzz::Check(tavrin::fuzz::TextOf(data, size));
    return 0;
}
