#include "snSelection.h"

#include "hostJournal.h"

namespace Qv {

namespace {

class HostSelection final : public SnSelection {
public:
  Vector<RCShdPtr<SnItem const>> const& getItems() const override { return items_; }
  void clear() override { items_.clear(); }
  void addItem(RCShdPtr<SnItem const> const& item) override {
    SnItem const& added = *item;
    HostJournal::getInstance().record("SnSelection::addItem", typeName(typeid(added)));
    items_.push_back(item);
  }

private:
  Vector<RCShdPtr<SnItem const>> items_;
};

} // namespace

SnSelection::~SnSelection() = default;

RCShdPtr<SnSelection> SnSelection::create() { return RCShdPtr<SnSelection>(new HostSelection); }

} // namespace Qv
