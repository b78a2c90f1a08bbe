#include "brAttribList.h"

#include "hostJournal.h"

namespace Qv {

BrAttribList::~BrAttribList() = default;

void BrAttribList::append(RCShdPtr<BrAttrib> const& attrib) {
  HostJournal::getInstance().record("BrAttribList::append", attrib->getName());
  attribs_.push_back(attrib);
}

void BrAttribList::singleSort(int attributeId) {
  HostJournal::getInstance().record("BrAttribList::singleSort", std::to_string(attributeId));
  sortKey_ = attributeId;
}

} // namespace Qv
