#pragma once

#include <unistd.h>

namespace Qv {

/// Owns a file descriptor; -1 is none.
class Descriptor {
public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  ~Descriptor() { reset(); }

  int get() const { return number_; }
  void reset(int number = -1) {
    if (number_ >= 0)
      close(number_);
    number_ = number;
  }

private:
  int number_;
};

} // namespace Qv
