#pragma once

#include <stdexcept>
#include <string>

#include "mirolen/core/translation.h"

namespace mirolen {

/// Root of every error that the heart raises. Catch this one to catch them all; what() says what went
/// wrong, in the language in force.
class RunTimeError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A result does not fit its type: 16 or 32 bits, or a Double that would become infinite.
class OverflowError : public RunTimeError {
  using RunTimeError::RunTimeError;
};

class DivisionByZero : public RunTimeError {
 public:
  DivisionByZero() : RunTimeError(tr("division by zero")) {}
};

class SubscriptOutOfRange : public RunTimeError {
 public:
  SubscriptOutOfRange() : RunTimeError(tr("subscript out of range")) {}
};

/// An argument outside the domain of the operation: the root of a negative number, a value that is not
/// finite.
class InvalidArgument : public RunTimeError {
  using RunTimeError::RunTimeError;
};

class OutOfMemory : public RunTimeError {
 public:
  OutOfMemory() : RunTimeError(tr("out of memory")) {}
};

/// A file that cannot be opened, read or written.
class FileError : public RunTimeError {
  using RunTimeError::RunTimeError;
};

/// A member of a drawing surface that failed or does not exist there.
class CanvasError : public RunTimeError {
 public:
  explicit CanvasError(std::string failed_member)
      : RunTimeError(tr("the canvas failed in ") + failed_member), member(std::move(failed_member)) {}

  const std::string member;
};

/// Runs statements so that a failing one does not end the routine: its handler runs, and the routine goes on
/// behind the statement. Costs nothing while nothing fails.
template <class Handler>
class ResumeNext {
 public:
  explicit ResumeNext(Handler handler) : handler_(std::move(handler)) {}

  template <class Statement>
  void operator()(Statement&& statement) const {
    try {
      statement();
    } catch (const RunTimeError&) {
      handler_();
    }
  }

 private:
  Handler handler_;
};

}  // namespace mirolen
