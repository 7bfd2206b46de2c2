// A value, or an error to show to a person: it names the thing that failed and what helps.
#pragma once

#include <string>
#include <utility>
#include <variant>

#include "base/Sentence.h"

namespace cutline {

struct Error {
  Error() = default;
  Error(Sentence what) : message(what.english()), sentence(std::move(what)) {}

  std::string message;  // in English; one line, no final stop needed, no "cutline: " prefix
  Sentence sentence;    // the same for whoever can say it in another language
};

template <typename T>
class Result {
 public:
  Result(T value) : mState(std::in_place_index<0>, std::move(value)) {}
  Result(Error error) : mState(std::in_place_index<1>, std::move(error)) {}

  explicit operator bool() const noexcept { return mState.index() == 0; }
  T& operator*() noexcept { return std::get<0>(mState); }
  const T& operator*() const noexcept { return std::get<0>(mState); }
  T* operator->() noexcept { return &std::get<0>(mState); }
  const T* operator->() const noexcept { return &std::get<0>(mState); }
  const Error& error() const noexcept { return std::get<1>(mState); }

 private:
  std::variant<T, Error> mState;
};

// The result of an operation that has no value to give.
struct Done {};

}  // namespace cutline
