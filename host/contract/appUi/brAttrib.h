#pragma once

#include "liString.h"
#include "rcShdPtr.h"

#include <array>

namespace Qv {

/// A column of the browser's list view.
class QV_EXPORT BrAttrib : public RCBase<LkCounter<int>> {
public:
  /// Column flags; the module passes 0 to 9.
  enum AttribAttributes : int {};

  /// @{
  /// Default limits of the width, in pixels.
  static int const DEFAULT_MIN_WIDTH;
  static int const DEFAULT_MAX_WIDTH;
  /// @}

  /// A column titled `name` that shows the attribute `attributeId` of each item.
  /// @param dataType BrBrowsable::ICON or BrBrowsable::STRING.
  /// @param minWidth in pixels, like `maxWidth`.
  static RCShdPtr<BrAttrib> create(LiString const& name, unsigned int attributeId,
                                   unsigned int dataType, int minWidth, int maxWidth,
                                   AttribAttributes first, AttribAttributes second,
                                   AttribAttributes third, AttribAttributes fourth,
                                   AttribAttributes fifth);

  /// Sets the current width, in pixels.
  int setCurrentW(int width);
  void setDisplayed(bool displayed);

  /// @name Stand-in only
  /// @{
  LiString const& getName() const { return name_; }
  unsigned int getAttributeId() const { return attributeId_; }
  unsigned int getDataType() const { return dataType_; }
  int getMinW() const { return minWidth_; }
  int getMaxW() const { return maxWidth_; }
  int getCurrentW() const { return currentWidth_; }
  std::array<AttribAttributes, 5> const& getAttributes() const { return attributes_; }
  bool isDisplayed() const { return displayed_; }
  /// @}

  /// @{
  /// Host fields that the module sets.
  bool auxFlag = true;
  LiString auxText = "none";
  /// @}

protected:
  ~BrAttrib() override;

private:
  BrAttrib(LiString const& name, unsigned int attributeId, unsigned int dataType, int minWidth,
           int maxWidth, std::array<AttribAttributes, 5> const& attributes);

  LiString name_;
  unsigned int attributeId_;
  unsigned int dataType_;
  int minWidth_;
  int maxWidth_;
  int currentWidth_;
  std::array<AttribAttributes, 5> attributes_;
  bool displayed_ = false;
};

} // namespace Qv
