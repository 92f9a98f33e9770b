#include "inspection/ball_limits.h"

#include "frame/angles.h"
#include "frame/numeric_text.h"

namespace tavrin {

QString BallLimits(Real a, Real t, Real s, int decPlace) {
    return "Min.Ball Size= " + NumToStr(RoundTo(t / CosDeg(a), decPlace)) + "\r\n" +
           "Max.Ball Size= " + NumToStr(RoundTo(s / CosDeg(a), decPlace));
}

}  // namespace tavrin
