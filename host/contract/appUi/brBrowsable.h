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
  enum ChildSearchOption : int {};

  // Attribute ids.
  static unsigned int const& NAME;
  static unsigned int const& BROWSABLE_TYPE;
  static unsigned int const& ROOT_NAME;
  static unsigned int const& OWNER;
  static unsigned int const& LMTIME;
  static unsigned int const& CREATION_TIME;
  static unsigned int const& BROWSABLE_ROLE;
  static unsigned int const& THUMBNAIL;

  // Data types of columns.
  static unsigned int const& ICON;
  static unsigned int const& STRING;

  /// Shown for a value that an item does not have.
  static LiString const NotAvailableString;

protected:
  ~BrBrowsable() override;

public:
  virtual LiString const& getSchemeName() const = 0;
  virtual LiString getPath() const = 0;
  virtual void set(int attributeId, int index, CoRgbColorTyped<float> const& value);
  virtual void set(int attributeId, CoRgbColorTyped<float> const& value);
  virtual void set(int attributeId, float value);
  virtual void set(int attributeId, long long value);
  virtual void set(int attributeId, Vector<LiString> const& value);
  virtual void set(int attributeId, LiString const& value);
  virtual void get(int attributeId, int index, CoRgbColorTyped<float>* value);
  virtual void get(int attributeId, CoRgbColorTyped<float>* value);
  virtual void get(int attributeId, float* value);
  virtual void get(int attributeId, long long* value);
  virtual void get(int attributeId, int index, Vector<LiString>* value);
  virtual void get(int attributeId, Vector<LiString>* value);
  virtual void get(int attributeId, int index, LiString* value);
  virtual void get(int attributeId, LiString* value);
  virtual void setDtTime(int attributeId, DtTime const& value);
  virtual void getDtTime(int attributeId, DtTime* value);
  virtual void getDate(int attributeId, LiDate* value);
  virtual RCShdPtr<WsManagedImage> getImage(int imageId, GeVector2<int> const& size);
  virtual std::string getTooltip(int attributeId) const;
  virtual bool areDetailsLoaded() const;
  virtual bool isThumbnailLoaded() const;
  virtual bool wasInterrupted() const;
  virtual void loadDetails();
  virtual void loadThumbnail();
  virtual void cancelDetailsRequest();
  virtual void cancelThumbnailRequest();
  virtual void notifyClick(int attributeId);
  virtual bool isAttributeEditable(int attributeId) const;
  virtual bool isAContainer() const = 0;
  virtual bool hasChildren(ChildSearchType type, ChildSearchOption option) const = 0;
  virtual bool hasSpecialBgColor() const;
  virtual bool hasSpecialFgColor() const;
  virtual RCShdPtr<BrChildrenQuery> getChildren(FindFilter filter) = 0;
  virtual LiString getTypeName() const;
  virtual bool isEqualTo(BrBrowsable const& other) const = 0;
  virtual void appendSelection(List<RCShdPtr<SnItem const>>& items);
  virtual bool isSelected(RCShdPtr<SnSelection> const& selection) const;
  virtual bool isPicklistable() const;
  virtual bool isAnyChildSelected(RCShdPtr<SnSelection> const& selection) const;
  virtual void select(bool selected);
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

protected:
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
