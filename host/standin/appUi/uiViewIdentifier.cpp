#include "uiViewIdentifier.h"

namespace Qv {

UiViewIdentifier::UiViewIdentifier(LiString const& name) : name_(name) {}

UiViewIdentifier::UiViewIdentifier(UiViewIdentifier const& other) = default;

bool UiViewIdentifier::operator==(UiViewIdentifier const& other) const {
  return name_ == other.name_;
}

std::ostream& operator<<(std::ostream& os, UiViewIdentifier const& view) {
  return os << "view \"" << view.getName() << "\"";
}

} // namespace Qv
