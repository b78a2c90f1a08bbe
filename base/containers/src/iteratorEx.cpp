#include "iteratorEx.h"

namespace Qv {

IteratorEx::IteratorEx(char const* file, int line, char const* what)
    : ExBase(std::string(what) + " in " + file + ", line " + std::to_string(line)), file_(file),
      line_(line) {}

IteratorEx::~IteratorEx() = default;

IteratorEx::ExOutOfRange::ExOutOfRange(char const* file, int line)
    : IteratorEx(file, line, "an iterator was moved out of its range") {}

IteratorEx::ExOutOfRange::~ExOutOfRange() = default;

} // namespace Qv
