#include "hostToolRegistry.h"

#include "hostJournal.h"
#include "hostPath.h"
#include "iteratorSTL.imp.h"

namespace Qv {

PiToolRegistry& PiToolRegistry::getInstance() { return HostToolRegistry::getInstance(); }

HostToolRegistry& HostToolRegistry::getInstance() {
  static HostToolRegistry registry;
  return registry;
}

void HostToolRegistry::addCategory(std::string const& name) {
  HostPath::requireComponent(name, "category name");
  categories_.push_back(name);
}

void HostToolRegistry::addTool(HostToolInfo const& info) {
  HostPath::requireComponent(info.name, "tool name");
  HostPath::requireComponent(info.category, "category name");
  RCShdPtr<PiTool const> const tool(new HostTool(info));
  tools_.push_back(tool);
  toolsByCategory_[info.category].push_back(tool);
  if (toolsByName_.emplace(info.name, tool).second && info.superTool)
    superTools_.insert(info.name);
}

void HostToolRegistry::clear() {
  categories_.clear();
  tools_.clear();
  toolsByCategory_.clear();
  toolsByName_.clear();
  superTools_.clear();
}

RCShdPtr<PiTool const> HostToolRegistry::find(std::string const& name) const {
  auto const found = toolsByName_.find(name);
  return found == toolsByName_.end() ? RCShdPtr<PiTool const>() : found->second;
}

RCShdPtr<PiTool const> HostToolRegistry::findTool(std::string const& name, bool flag) {
  HostJournal::getInstance().record("PiToolRegistry::findTool", name, flag ? "true" : "false");
  return find(name);
}

RCShdPtr<PiTool const> HostToolRegistry::getTool(std::string const& name) {
  HostJournal::getInstance().record("PiToolRegistry::getTool", name);
  return find(name);
}

Iterator<RCShdPtr<PiTool const>>
HostToolRegistry::getTools(PrdPredicate<RCShdPtr<PiTool const>> const& predicate, bool flag) {
  std::string const* const category = predicate.getIndexKey();
  HostJournal::getInstance().record("PiToolRegistry::getTools", category ? *category : "",
                                    flag ? "true" : "false");

  RCStrongPtr<Tools> const result(new Tools);
  auto const selectFrom = [&](Tools const& tools) {
    for (RCShdPtr<PiTool const> const& tool : tools)
      if (predicate.holds(tool))
        result->push_back(tool);
  };
  if (!category)
    selectFrom(tools_);
  else if (auto const found = toolsByCategory_.find(*category); found != toolsByCategory_.end())
    selectFrom(found->second);
  return makeIterator(result);
}

Iterator<std::string> HostToolRegistry::getCategories() {
  HostJournal::getInstance().record("PiToolRegistry::getCategories");
  return makeIterator(RCStrongPtr<Vector<std::string>>(new Vector<std::string>(categories_)));
}

bool HostToolRegistry::isSuperTool(std::string const& name) {
  HostJournal::getInstance().record("PiToolRegistry::isSuperTool", name);
  return superTools_.contains(name);
}

} // namespace Qv
