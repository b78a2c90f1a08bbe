#pragma once

#include "qvExport.h"

#include <exception>
#include <string>

namespace Qv {

/// Base class of the library's exceptions.
class QV_EXPORT ExBase : public std::exception {
public:
  /// @param what one sentence for users.
  explicit ExBase(std::string what);
  ~ExBase() override;

  char const* what() const noexcept override;

private:
  std::string what_;
};

} // namespace Qv
