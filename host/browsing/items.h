#pragma once

#include "brServer.h"

#include <string>
#include <vector>

namespace Qv {

inline constexpr BrBrowsable::FindFilter AllChildren{0};
inline constexpr BrBrowsable::FindFilter ItemsOnly{2};

using Items = std::vector<RCShdPtr<BrBrowsable>>;

/// The item that a scheme makes of a path, whether or not there is anything of that name.
/// @throws HostError for an unknown scheme, std::invalid_argument for a path that it refuses.
RCShdPtr<BrBrowsable> findItem(std::string const& scheme, std::string const& path);

/// The children of an item, in the order of its query.
Items getChildren(BrBrowsable& item, BrBrowsable::FindFilter filter = AllChildren);
bool hasChildren(BrBrowsable const& item);
bool hasContainerChildren(BrBrowsable const& item);

/// @{
/// The path with no separator too many, that of the parent, and the last name in it. What users
/// read of an item is its NAME, which may be another.
std::string normalise(std::string_view path);
std::string getParentPath(std::string const& path);
std::string getLastName(std::string const& path);
/// @}

/// A string attribute of an item.
std::string getAttribute(BrBrowsable& item, unsigned int attributeId);
std::vector<std::string> getTooltipLines(BrBrowsable const& item);

/// An attribute id with the name that the contract gives it.
struct Attribute {
  char const* name;
  unsigned int id;
};
/// All string attributes of the contract.
std::vector<Attribute> getAttributes();

} // namespace Qv
