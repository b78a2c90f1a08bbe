#pragma once

#include "exBase.h"

namespace Qv {

/// Thrown by the host when it refuses what it was asked to do; it is as it was before.
class QV_EXPORT HostError : public ExBase {
public:
  using ExBase::ExBase;
  ~HostError() override;
};

/// Accepts a name that is one whole path component.
/// @param what says what the name is for, for instance "tool name".
/// @throws HostError when the name is empty or holds a "/" or a zero byte.
QV_EXPORT void requireComponent(std::string const& name, char const* what);

} // namespace Qv
