#pragma once

#include "exBase.h"

#include <optional>

namespace Qv {

/// Thrown when an invariant of the program is broken.
class QV_EXPORT ExProgramAborted : public ExBase {
public:
  ExProgramAborted(char const* file, int line, char const* message);
  ~ExProgramAborted() override;

  std::string const& getFile() const { return file_; }
  int getLine() const { return line_; }
  /// The message as thrown; null when there is none.
  char const* getMessage() const { return message_ ? message_->c_str() : nullptr; }

private:
  std::string file_;
  int line_;
  std::optional<std::string> message_;
};

/// Reports a broken invariant.
class QV_EXPORT Assertions {
public:
  /// @throws ExProgramAborted always. @param file the source file. @param line the line in it.
  /// @param message what is broken; may be null.
  [[noreturn]] static void throwProgramAborted(char const* file, int line, char const* message);
};

} // namespace Qv
