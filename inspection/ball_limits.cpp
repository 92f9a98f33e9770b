#include "inspection/ball_limits.h"

#include "frame/angles.h"
#include "frame/app.h"
#include "frame/numeric_text.h"

namespace tavrin {

QString BallLimits(const Form& f, Real a, Real t, Real s) {
    const int places = f.app().decPlace;
    return "Min.Ball Size= " + NumToStr(RoundTo(t / CosDeg(a), places)) + "\r\n" +
           "Max.Ball Size= " + NumToStr(RoundTo(s / CosDeg(a), places));
}

}  // namespace tavrin
