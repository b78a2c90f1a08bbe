#pragma once

#include "exBase.h"

namespace Qv {

/// Base class of the iterators' exceptions.
class QV_EXPORT IteratorEx : public ExBase {
public:
  class ExOutOfRange;

  ~IteratorEx() override;

  std::string const& getFile() const { return file_; }
  int getLine() const { return line_; }

protected:
  IteratorEx(char const* file, int line, char const* what);

private:
  std::string file_;
  int line_;
};

/// Thrown when an iterator would leave its sequence.
class QV_EXPORT IteratorEx::ExOutOfRange : public IteratorEx {
public:
  ExOutOfRange(char const* file, int line);
  ~ExOutOfRange() override;
};

} // namespace Qv
