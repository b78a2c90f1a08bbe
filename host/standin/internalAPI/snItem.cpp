#include "snItem.h"

namespace Qv {

SnParts::~SnParts() = default;

SnItem::Snapshot::~Snapshot() = default;

SnItem::SnItem(RCShdPtr<SnParts> const& parts) : parts_(parts) {}

SnItem::SnItem(SnItem const& other) = default;

SnItem::~SnItem() = default;

void SnItem::dump(std::ostream& os) const {
  os << "Item:      " << typeName(typeid(*this)) << "\n";
}

// The base class has nothing to save.
RCShdPtr<SnItem::Snapshot> SnItem::snapshot() const { return RCShdPtr<Snapshot>(); }

RCShdPtr<SnItem> SnItem::restore() const { return RCShdPtr<SnItem>(); }

} // namespace Qv
