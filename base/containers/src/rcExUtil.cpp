#include "rcExUtil.h"

namespace Qv {

ExNullPtr::ExNullPtr(char const* typeName)
    : ExBase(std::string("a null pointer of type ") + typeName + " was dereferenced"),
      typeName_(typeName) {}

ExNullPtr::~ExNullPtr() = default;

ExCastFailed::ExCastFailed(char const* from, char const* to)
    : ExBase(std::string("an object of type ") + from + " is not a " + to), from_(from), to_(to) {}

ExCastFailed::~ExCastFailed() = default;

void RCExUtil::throwExNullPtr(char const* typeName) { throw ExNullPtr(typeName); }

void RCExUtil::throwExCastFailed(char const* from, char const* to) { throw ExCastFailed(from, to); }

} // namespace Qv
