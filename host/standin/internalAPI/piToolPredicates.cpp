#include "piToolPredicates.h"

#include "hostTool.h"
#include "prdPredicate.imp.h"

namespace Qv {

using ToolPtr = RCShdPtr<PiTool const>;

template class PrdPredicate<ToolPtr>;

namespace {

class IsCategory final : public PrdTerm<ToolPtr> {
public:
  explicit IsCategory(LiString const& category) : category_(category) {}

  bool holds(ToolPtr const& tool) const override {
    return tool.checkedCast<HostTool const>()->getCategory() == category_;
  }
  std::string const* getIndexKey() const override { return &category_; }

private:
  LiString category_;
};

class IsInternal final : public PrdTerm<ToolPtr> {
public:
  bool holds(ToolPtr const& tool) const override {
    return tool.checkedCast<HostTool const>()->isInternal();
  }
};

class IsActive final : public PrdTerm<ToolPtr> {
public:
  bool holds(ToolPtr const& tool) const override { return tool->isActive(); }
};

PrdPredicate<ToolPtr> makePredicate(PrdTerm<ToolPtr> const* term) {
  return PrdPredicate<ToolPtr>(RCShdPtr<PrdTerm<ToolPtr> const>(term));
}

} // namespace

PrdPredicate<ToolPtr> PiToolPredicates::isCategory(LiString const& category) {
  return makePredicate(new IsCategory(category));
}

PrdPredicate<ToolPtr> PiToolPredicates::isInternal() { return makePredicate(new IsInternal); }

PrdPredicate<ToolPtr> PiToolPredicates::isActive() { return makePredicate(new IsActive); }

} // namespace Qv
