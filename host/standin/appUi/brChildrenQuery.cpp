#include "brChildrenQuery.h"

namespace Qv {

BrChildrenQuery::BrChildrenQuery(BrBrowsable* parent) : parent_(parent) {}

BrChildrenQuery::~BrChildrenQuery() = default;

} // namespace Qv
