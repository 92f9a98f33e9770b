#include "frame/run_time_error.h"

namespace tavrin {

QString RunTimeError::text() const {
    switch (number_) {
        case ErrorNumber::InvalidCall:
            return QStringLiteral("Invalid procedure call or argument");
        case ErrorNumber::Overflow:
            return QStringLiteral("Overflow");
        case ErrorNumber::SubscriptOutOfRange:
            return QStringLiteral("Subscript out of range");
        case ErrorNumber::DivisionByZero:
            return QStringLiteral("Division by zero");
        case ErrorNumber::TypeMismatch:
            return QStringLiteral("Type mismatch");
        case ErrorNumber::FileNotFound:
            return QStringLiteral("File not found");
    }
    return QStringLiteral("Application-defined or object-defined error");
}

QString RunTimeError::fatalText() const {
    return QStringLiteral("Run-time error '%1':\r\n\r\n%2").arg(code()).arg(text());
}

void Raise(ErrorNumber number) {
    throw RunTimeError(number);
}

}  // namespace tavrin
