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
  /// Value 2 asks for the items at the scheme's item depth alone, any other for all children.
  enum FindFilter : int {};
  /// Value 1 asks for children that are containers themselves, any other for any children.
  enum ChildSearchType : int {};
  /// The module does not look at it.
  enum ChildSearchOption : int {};

  /// @{
  /// The id of an attribute.
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
  /// The data type of a column.
  static unsigned int const& ICON;
  static unsigned int const& STRING;
  /// @}

  /// Shown for a value that an item does not have.
  static LiString const NotAvailableString;

protected:
  ~BrBrowsable() override;

public:
  /// The name of the scheme that the item belongs to.
  virtual LiString const& getSchemeName() const = 0;
  /// The path from which the scheme makes an equal item.
  virtual LiString getPath() const = 0;
  /// @{
  /// Writes an attribute. The host ignores what the class of the item does not store.
  virtual void set(int attributeId, int index, CoRgbColorTyped<float> const& value);
  virtual void set(int attributeId, CoRgbColorTyped<float> const& value);
  virtual void set(int attributeId, float value);
  virtual void set(int attributeId, long long value);
  virtual void set(int attributeId, Vector<LiString> const& value);
  virtual void set(int attributeId, LiString const& value);
  /// @}
  /// @{
  /// Reads an attribute into `value`. For one that the class of the item does not give, the host
  /// has an answer of its own.
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
  /// Times and dates; the module leaves these to the host.
  virtual void setDtTime(int attributeId, DtTime const& value);
  virtual void getDtTime(int attributeId, DtTime* value);
  virtual void getDate(int attributeId, LiDate* value);
  /// @}
  /// The image of that id, for instance THUMBNAIL; null when there is none. @param size in pixels.
  virtual RCShdPtr<WsManagedImage> getImage(int imageId, GeVector2<int> const& size);
  /// The text shown when the pointer rests on the item; "<br>" separates lines.
  virtual std::string getTooltip(int attributeId) const;
  /// @{
  /// Loading in the background; an item that has all at hand leaves these to the host.
  virtual bool areDetailsLoaded() const;
  virtual bool isThumbnailLoaded() const;
  virtual bool wasInterrupted() const;
  virtual void loadDetails();
  virtual void loadThumbnail();
  virtual void cancelDetailsRequest();
  virtual void cancelThumbnailRequest();
  /// @}
  /// Called after a click on an attribute of the item.
  virtual void notifyClick(int attributeId);
  /// Whether users may change the attribute.
  virtual bool isAttributeEditable(int attributeId) const;
  virtual bool isAContainer() const = 0;
  /// Whether there are children, or children that are containers themselves, without listing them.
  virtual bool hasChildren(ChildSearchType type, ChildSearchOption option) const = 0;
  /// @{
  /// Whether the item has a colour of its own; the module leaves these to the host.
  virtual bool hasSpecialBgColor() const;
  virtual bool hasSpecialFgColor() const;
  /// @}
  /// A new query over the children; the item must outlive it.
  virtual RCShdPtr<BrChildrenQuery> getChildren(FindFilter filter) = 0;
  virtual LiString getTypeName() const;
  /// Whether both stand for the same thing.
  virtual bool isEqualTo(BrBrowsable const& other) const = 0;
  /// Appends the selection items that stand for this item.
  virtual void appendSelection(List<RCShdPtr<SnItem const>>& items);
  /// Whether the selection holds the item.
  virtual bool isSelected(RCShdPtr<SnSelection> const& selection) const;
  virtual bool isPicklistable() const;
  /// Whether the selection holds a child of the item.
  virtual bool isAnyChildSelected(RCShdPtr<SnSelection> const& selection) const;
  /// Called when the item is selected or deselected.
  virtual void select(bool selected);
  /// @{
  /// The module leaves these to the host.
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
  /// The module leaves this to the host.
  virtual RCShdPtr<BrThumbnailDetailList> getNonCachedThumbnailDetails();

public:
  /// An item of `server`, which is not owned and must outlive the item.
  explicit BrBrowsable(BrServer* server);
  /// A type prototype, without server.
  BrBrowsable();

  /// Null for a type prototype.
  BrServer* getServer() const;

private:
  BrServer* server_;
};

} // namespace Qv
