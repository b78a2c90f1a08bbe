#include "exBase.h"

#include <utility>

namespace Qv {

ExBase::ExBase(std::string what) : what_(std::move(what)) {}

ExBase::~ExBase() = default;

char const* ExBase::what() const noexcept { return what_.c_str(); }

} // namespace Qv
