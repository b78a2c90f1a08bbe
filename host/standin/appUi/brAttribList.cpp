#include "brAttribList.h"

namespace Qv {

BrAttribList::~BrAttribList() = default;

void BrAttribList::append(RCShdPtr<BrAttrib> const& attrib) { attribs_.push_back(attrib); }

void BrAttribList::singleSort(int attributeId) { sortKey_ = attributeId; }

} // namespace Qv
