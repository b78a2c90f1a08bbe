#pragma once

#include "exBase.h"

#include <optional>

namespace Qv {

/// Thrown when a program invariant is broken.
class QV_EXPORT ExProgramAborted : public ExBase {
public:
  ExProgramAborted(char const* file, int line, char const* message);
  ~ExProgramAborted() override;

  std::string const& getFile() const { return file_; }
  int getLine() const { return line_; }
  /// Null if thrown without a message.
  char const* getMessage() const { return message_ ? message_->c_str() : nullptr; }

private:
  std::string file_;
  int line_;
  std::optional<std::string> message_;
};

/// Reports a broken invariant.
class QV_EXPORT Assertions {
public:
  /// @throws ExProgramAborted always. @param message may be null.
  [[noreturn]] static void throwProgramAborted(char const* file, int line, char const* message);
};

} // namespace Qv
