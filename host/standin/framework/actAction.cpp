#include "actAction.h"

namespace Qv {

ActAction::ActAction() = default;

ActAction::~ActAction() = default;

std::string ActAction::getDisplayString() const { return const_cast<ActAction*>(this)->getName(); }

std::string ActAction::getGroup() const { return ""; }

std::string ActAction::getCompositeName() const { return getDisplayString(); }

} // namespace Qv
