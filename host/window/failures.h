#pragma once

#include <functional>
#include <string>

namespace Qv {

/// Keeps exceptions of the module and the host away from Qt, which they must not pass through.
class Failures {
public:
  explicit Failures(std::function<void(std::string const&)> report) : report_(std::move(report)) {}

  /// Makes a call that Qt asked for. When it throws, reports why and returns an empty result.
  template <class Call> auto guard(Call const& call) noexcept -> decltype(call()) {
    try {
      return call();
    } catch (...) {
      report();
    }
    return decltype(call())();
  }

private:
  /// Reports the exception that is being handled.
  void report() noexcept;

  std::function<void(std::string const&)> report_;
};

/// What the exception that is being handled says.
std::string describeException();

} // namespace Qv
