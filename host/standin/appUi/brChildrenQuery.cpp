#include "brChildrenQuery.h"

namespace Qv {

BrChildrenQuery::BrChildrenQuery(BrBrowsable* /*parent*/) {}

BrChildrenQuery::~BrChildrenQuery() = default;

} // namespace Qv
