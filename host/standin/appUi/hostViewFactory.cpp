#include "hostViewFactory.h"

#include "hostError.h"
#include "hostJournal.h"
#include "hostPath.h"
#include "iteratorSTL.imp.h"

namespace Qv {

Iterator<LiString> UiViewFactory::getViews() {
  HostJournal::getInstance().record("UiViewFactory::getViews");
  using Names = Vector<LiString>;
  RCStrongPtr<Names> const names(new Names);
  for (std::string const& name : HostViewFactory::getInstance().getNames())
    names->push_back(name);
  return makeIterator(names);
}

LiString UiViewFactory::getViewLabel(LiString const& name) {
  HostJournal::getInstance().record("UiViewFactory::getViewLabel", name);
  std::string const* const label = HostViewFactory::getInstance().findLabel(name);
  return label ? LiString(*label) : name;
}

HostViewFactory& HostViewFactory::getInstance() {
  static HostViewFactory factory;
  return factory;
}

void HostViewFactory::addView(View const& view) {
  HostPath::requireComponent(view.name, "view name");
  if (!labels_.emplace(view.name, view.label).second)
    throw HostError("duplicate view \"" + view.name + "\"");
  names_.push_back(view.name);
}

void HostViewFactory::clear() {
  names_.clear();
  labels_.clear();
}

std::string const* HostViewFactory::findLabel(std::string const& name) const {
  auto const found = labels_.find(name);
  return found == labels_.end() ? nullptr : &found->second;
}

} // namespace Qv
