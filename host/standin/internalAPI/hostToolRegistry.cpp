#include "hostToolRegistry.h"

#include "hostJournal.h"
#include "hostPath.h"
#include "iteratorSTL.imp.h"

namespace Qv {

namespace {

std::uint32_t hashOf(std::string const& name) {
  return std::uint32_t(std::hash<std::string>()(name));
}

std::string const& nameOf(RCShdPtr<PiTool const> const& tool) {
  return static_cast<HostTool const&>(*tool).getInfo().name;
}

} // namespace

PiToolRegistry& PiToolRegistry::getInstance() { return HostToolRegistry::getInstance(); }

HostToolRegistry& HostToolRegistry::getInstance() {
  static HostToolRegistry registry;
  return registry;
}

void HostToolRegistry::addCategory(std::string const& name) {
  HostPath::requireComponent(name, "category name");
  categories_.push_back(name);
}

void HostToolRegistry::addTool(RCShdPtr<HostTool const> const& tool) {
  HostToolInfo const& info = tool->getInfo();
  HostPath::requireComponent(info.name, "tool name");
  HostPath::requireComponent(info.category, "category name");
  tools_.push_back(tool);
  toolsByCategory_[info.category].push_back(tool);

  if (2 * names_ >= slots_.size())
    for (Slot const& slot : std::exchange(slots_, std::vector<Slot>(2 * slots_.size())))
      if (slot.tool != 0)
        slotOf(slot.hash, nullptr) = slot;
  std::uint32_t const hash = hashOf(info.name);
  if (Slot& slot = slotOf(hash, &info.name); slot.tool == 0) {
    slot = {hash, std::uint32_t(tools_.size())};
    ++names_;
    if (info.superTool)
      superTools_.insert(info.name);
  }
}

void HostToolRegistry::clear() {
  categories_.clear();
  tools_.clear();
  toolsByCategory_.clear();
  slots_ = std::vector<Slot>(16);
  names_ = 0;
  superTools_.clear();
}

HostToolRegistry::Slot& HostToolRegistry::slotOf(std::uint32_t hash, std::string const* name) {
  auto const isOf = [&](Slot const& slot) {
    return name && slot.hash == hash && nameOf(tools_[slot.tool - 1]) == *name;
  };
  std::size_t const mask = slots_.size() - 1;
  std::size_t place = hash & mask;
  while (slots_[place].tool != 0 && !isOf(slots_[place]))
    place = (place + 1) & mask;
  return slots_[place];
}

RCShdPtr<PiTool const> HostToolRegistry::find(std::string const& name) {
  Slot const& slot = slotOf(hashOf(name), &name);
  return slot.tool == 0 ? RCShdPtr<PiTool const>() : tools_[slot.tool - 1];
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
