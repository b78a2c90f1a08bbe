#pragma once

#include "brAttrib.h"
#include "containers.h"

#include <optional>

namespace Qv {

/// The columns of a scheme, in order.
class QV_EXPORT BrAttribList : public RCBase<LkCounter<int>> {
public:
  void append(RCShdPtr<BrAttrib> const& attrib);
  /// Sorts by this attribute only.
  void singleSort(int attributeId);

  /// @name Stand-in only
  /// @{
  Vector<RCShdPtr<BrAttrib>> const& getAttribs() const { return attribs_; }
  /// The sort attribute, if any.
  std::optional<int> getSortKey() const { return sortKey_; }
  /// @}

protected:
  ~BrAttribList() override;

private:
  Vector<RCShdPtr<BrAttrib>> attribs_;
  std::optional<int> sortKey_;
};

} // namespace Qv
