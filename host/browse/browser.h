#pragma once

#include "brServer.h"

#include <functional>
#include <string>
#include <vector>

namespace Qv {

inline constexpr BrBrowsable::FindFilter AllChildren{0};
inline constexpr BrBrowsable::ChildSearchType AnyChildren{0};
inline constexpr BrBrowsable::ChildSearchOption NoOption{0};

/// The item at a path. @throws HostError when nobody registered the scheme or the scheme refuses
/// the path.
RCShdPtr<BrBrowsable> findItem(std::string const& scheme, std::string const& path);

/// Calls `visit` with each child of an item, in the order of its queries.
void forEachChild(BrBrowsable& item, BrBrowsable::FindFilter filter,
                  std::function<void(RCShdPtr<BrBrowsable> const&)> const& visit);

/// A string attribute of an item.
std::string getAttribute(BrBrowsable& item, unsigned int attributeId);

/// An attribute id under the name that the contract gives it.
struct Attribute {
  char const* name;
  unsigned int id;
};
/// All string attributes of the contract.
std::vector<Attribute> const& getAttributes();
/// The contract's name of an attribute id, or the number itself.
std::string getAttributeName(unsigned int attributeId);

} // namespace Qv
