#include "assertions.h"

namespace Qv {

ExProgramAborted::ExProgramAborted(char const* file, int line, char const* message)
    : ExBase(std::string("the program was aborted in ") + file + ", line " + std::to_string(line) +
             (message ? std::string(": ") + message : std::string())),
      file_(file), line_(line),
      message_(message ? std::optional<std::string>(message) : std::nullopt) {}

ExProgramAborted::~ExProgramAborted() = default;

void Assertions::throwProgramAborted(char const* file, int line, char const* message) {
  throw ExProgramAborted(file, line, message);
}

} // namespace Qv
