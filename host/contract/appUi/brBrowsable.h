#pragma once

#include "brChildrenQuery.h"
#include "coRgbColorTyped.h"
#include "containers.h"
#include "geRectangle.h"
#include "liString.h"
#include "wsManagedImage.h"

namespace Qv {

class BrServer;
class BrThumbnailDetailList;
class DtTime;
class EvDeviceEvent;
class LiDate;
class PiInputPolicy;
class SnItem;
class SnSelection;
class UiWidget;
class VpPlayer;

/// An item of the asset browser.
class QV_EXPORT BrBrowsable : public RCBase<LkCounter<int>> {
public:
  /// 2 selects only items at the scheme's item depth, any other value all children.
  enum FindFilter : int {};
  /// 1 selects only children that are containers, any other value all children.
  enum ChildSearchType : int {};
  /// Ignored by the module.
  enum ChildSearchOption : int {};

  /// @{
  /// Attribute ids.
  static unsigned int const& NAME;
  static unsigned int const& BROWSABLE_TYPE;
  static unsigned int const& ROOT_NAME;
  static unsigned int const& OWNER;
  static unsigned int const& LMTIME;
  static unsigned int const& CREATION_TIME;
  static unsigned int const& BROWSABLE_ROLE;
  static unsigned int const& THUMBNAIL;
  /// @}

  /// @{
  /// Column data types.
  static unsigned int const& ICON;
  static unsigned int const& STRING;
  /// @}

  /// Shown for a value that an item lacks.
  static LiString const NotAvailableString;

protected:
  ~BrBrowsable() override;

public:
  virtual LiString const& getSchemeName() const = 0;
  /// The path from which the scheme makes an equal item.
  virtual LiString getPath() const = 0;
  /// @{
  /// Writes an attribute. The default ignores it.
  virtual void set(int attributeId, int index, CoRgbColorTyped<float> const& value);
  virtual void set(int attributeId, CoRgbColorTyped<float> const& value);
  virtual void set(int attributeId, float value);
  virtual void set(int attributeId, long long value);
  virtual void set(int attributeId, Vector<LiString> const& value);
  virtual void set(int attributeId, LiString const& value);
  /// @}
  /// @{
  /// Reads an attribute into `value`. The host has a default for those that the class lacks.
  virtual void get(int attributeId, int index, CoRgbColorTyped<float>* value);
  virtual void get(int attributeId, CoRgbColorTyped<float>* value);
  virtual void get(int attributeId, float* value);
  virtual void get(int attributeId, long long* value);
  virtual void get(int attributeId, int index, Vector<LiString>* value);
  virtual void get(int attributeId, Vector<LiString>* value);
  virtual void get(int attributeId, int index, LiString* value);
  virtual void get(int attributeId, LiString* value);
  /// @}
  /// @{
  /// Not overridden by the module.
  virtual void setDtTime(int attributeId, DtTime const& value);
  virtual void getDtTime(int attributeId, DtTime* value);
  virtual void getDate(int attributeId, LiDate* value);
  /// @}
  /// The image `imageId`, for instance THUMBNAIL, or null. @param size in pixels.
  virtual RCShdPtr<WsManagedImage> getImage(int imageId, GeVector2<int> const& size);
  /// "<br>" separates the lines.
  virtual std::string getTooltip(int attributeId) const;
  /// @{
  /// Background loading; not overridden by the module, whose items have everything at hand.
  virtual bool areDetailsLoaded() const;
  virtual bool isThumbnailLoaded() const;
  virtual bool wasInterrupted() const;
  virtual void loadDetails();
  virtual void loadThumbnail();
  virtual void cancelDetailsRequest();
  virtual void cancelThumbnailRequest();
  /// @}
  /// Called when a user clicks an attribute.
  virtual void notifyClick(int attributeId);
  virtual bool isAttributeEditable(int attributeId) const;
  virtual bool isAContainer() const = 0;
  /// Whether there are children of that type; does not list them.
  virtual bool hasChildren(ChildSearchType type, ChildSearchOption option) const = 0;
  /// @{
  /// Not overridden by the module.
  virtual bool hasSpecialBgColor() const;
  virtual bool hasSpecialFgColor() const;
  /// @}
  /// A new query over the children; the item must outlive it.
  virtual RCShdPtr<BrChildrenQuery> getChildren(FindFilter filter) = 0;
  virtual LiString getTypeName() const;
  /// Whether both represent the same object.
  virtual bool isEqualTo(BrBrowsable const& other) const = 0;
  /// Appends the selection items that represent this item.
  virtual void appendSelection(List<RCShdPtr<SnItem const>>& items);
  virtual bool isSelected(RCShdPtr<SnSelection> const& selection) const;
  virtual bool isPicklistable() const;
  virtual bool isAnyChildSelected(RCShdPtr<SnSelection> const& selection) const;
  /// Called when the item is selected or deselected.
  virtual void select(bool selected);
  /// @{
  /// Not overridden by the module.
  virtual bool supportsSequence();
  virtual LiString getUniqueId();
  virtual RCShdPtr<BrThumbnailDetailList> getThumbnailDetails();
  virtual LiString getPermission() const;
  virtual bool canSetPlayTarget() const;
  virtual void setPlayTarget(RCShdPtr<VpPlayer> const& player) const;
  virtual void getInputPolicy(int attributeId, RCShdPtr<PiInputPolicy const>& policy) const;
  virtual void configureWidget(int attributeId, RCShdPtr<UiWidget>& widget);
  virtual void removeWidgets(Set<int> const& attributeIds);
  virtual GeRectangle<int> transformWidgetRect(int attributeId, GeRectangle<int> const& rect) const;
  virtual bool canDrag(EvDeviceEvent& event) const;
  /// @}

protected:
  /// Not overridden by the module.
  virtual RCShdPtr<BrThumbnailDetailList> getNonCachedThumbnailDetails();

public:
  /// An item of `server`, which is not owned and must outlive the item.
  explicit BrBrowsable(BrServer* server);
  /// A type prototype, without a server.
  BrBrowsable();

  /// Null for a type prototype.
  BrServer* getServer() const;

private:
  BrServer* server_;
};

} // namespace Qv
