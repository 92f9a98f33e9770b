#pragma once

#include <QString>
#include <exception>

namespace tavrin {

// The numbered failures of the arithmetic and text operations. A handler that
// does not catch one ends the program with the fatal box.
enum class ErrorNumber {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
};

class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(ErrorNumber number) : number_(number) {}
    ErrorNumber number() const { return number_; }
    int code() const { return static_cast<int>(number_); }
    QString text() const;
    // "Run-time error '11':" CR LF CR LF "Division by zero"
    QString fatalText() const;
    const char* what() const noexcept override { return "run-time error"; }

  private:
    ErrorNumber number_;
};

[[noreturn]] void Raise(ErrorNumber number);

}  // namespace tavrin
