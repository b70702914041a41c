// Errors are values that carry the finished sentence to show.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace Base {

struct Error {
  std::string message;     // UTF-8, shown as it stands
  std::string title = {};  // of the box; empty for the program's usual one
  int systemCode = 0;      // an errno value where the system refused something, else 0
};

template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : content_(std::move(value)) {}
  Result(Error error) : content_(std::move(error)) {}

  explicit operator bool() const { return std::holds_alternative<T>(content_); }
  // The value may be asked for only when there is one, the error only when there is none.
  T& operator*() { return *std::get_if<T>(&content_); }
  const T& operator*() const { return *std::get_if<T>(&content_); }
  T* operator->() { return std::get_if<T>(&content_); }
  const T* operator->() const { return std::get_if<T>(&content_); }
  const Base::Error& error() const { return *std::get_if<Base::Error>(&content_); }

 private:
  std::variant<T, Base::Error> content_;
};

struct Done {};
using Outcome = Result<Done>;

}  // namespace Base
