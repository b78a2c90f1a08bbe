#pragma once

#include "brServer.h"

#include <string>
#include <vector>

namespace Qv {

inline constexpr BrBrowsable::FindFilter AllChildren{0};
inline constexpr BrBrowsable::FindFilter ItemsOnly{2};

using Items = std::vector<RCShdPtr<BrBrowsable>>;

/// The item of a scheme at a path.
/// @throws HostError when there is no such scheme, std::invalid_argument when it has no such path.
RCShdPtr<BrBrowsable> findItem(std::string const& scheme, std::string const& path);

/// The children of an item, in the order of its query.
Items getChildren(BrBrowsable& item, BrBrowsable::FindFilter filter = AllChildren);
bool hasChildren(BrBrowsable const& item);
bool hasContainerChildren(BrBrowsable const& item);

/// A string attribute of an item.
std::string getAttribute(BrBrowsable& item, unsigned int attributeId);

/// An attribute id with the name that the contract gives it.
struct Attribute {
  char const* name;
  unsigned int id;
};
/// All string attributes of the contract.
std::vector<Attribute> getAttributes();

} // namespace Qv
