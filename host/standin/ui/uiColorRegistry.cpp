#include "uiColorRegistry.h"

#include "hostError.h"
#include "hostJournal.h"

namespace Qv {

LiString const UiColorRegistry::NonEditBackground("NonEditBackground");

UiColorRegistry& UiColorRegistry::getInstance() {
  static UiColorRegistry registry;
  return registry;
}

CoRgbColorTyped<float> UiColorRegistry::getColor(LiString const& name) const {
  HostJournal::getInstance().record("UiColorRegistry::getColor", name);
  if (name != NonEditBackground)
    throw HostError("unknown colour \"" + name + "\"");
  return {0.25F, 0.25F, 0.25F};
}

} // namespace Qv
