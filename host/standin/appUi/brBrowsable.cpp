#include "brBrowsable.h"

#include "hostOpaque.h"

namespace Qv {

namespace {

constexpr unsigned int nameId = 1;
constexpr unsigned int browsableTypeId = 2;
constexpr unsigned int rootNameId = 3;
constexpr unsigned int ownerId = 4;
constexpr unsigned int lmtimeId = 5;
constexpr unsigned int creationTimeId = 6;
constexpr unsigned int browsableRoleId = 7;
constexpr unsigned int thumbnailId = 8;

constexpr unsigned int iconType = 1;
constexpr unsigned int stringType = 2;

} // namespace

unsigned int const& BrBrowsable::NAME = nameId;
unsigned int const& BrBrowsable::BROWSABLE_TYPE = browsableTypeId;
unsigned int const& BrBrowsable::ROOT_NAME = rootNameId;
unsigned int const& BrBrowsable::OWNER = ownerId;
unsigned int const& BrBrowsable::LMTIME = lmtimeId;
unsigned int const& BrBrowsable::CREATION_TIME = creationTimeId;
unsigned int const& BrBrowsable::BROWSABLE_ROLE = browsableRoleId;
unsigned int const& BrBrowsable::THUMBNAIL = thumbnailId;

unsigned int const& BrBrowsable::ICON = iconType;
unsigned int const& BrBrowsable::STRING = stringType;

LiString const BrBrowsable::NotAvailableString("Not available");

BrBrowsable::BrBrowsable(BrServer* server) : server_(server) {}

BrBrowsable::BrBrowsable() : BrBrowsable(nullptr) {}

BrBrowsable::~BrBrowsable() = default;

BrServer* BrBrowsable::getServer() const { return server_; }

// An item that overrides nothing has no attributes: reading yields NotAvailableString or an empty
// value, writing is ignored, and nothing needs loading or is editable, selected or playable.

void BrBrowsable::set(int /*attributeId*/, int /*index*/, CoRgbColorTyped<float> const& /*value*/) {
}
void BrBrowsable::set(int /*attributeId*/, CoRgbColorTyped<float> const& /*value*/) {}
void BrBrowsable::set(int /*attributeId*/, float /*value*/) {}
void BrBrowsable::set(int /*attributeId*/, long long /*value*/) {}
void BrBrowsable::set(int /*attributeId*/, Vector<LiString> const& /*value*/) {}
void BrBrowsable::set(int /*attributeId*/, LiString const& /*value*/) {}

void BrBrowsable::get(int /*attributeId*/, int /*index*/, CoRgbColorTyped<float>* value) {
  *value = {};
}
void BrBrowsable::get(int /*attributeId*/, CoRgbColorTyped<float>* value) { *value = {}; }
void BrBrowsable::get(int /*attributeId*/, float* value) { *value = 0; }
void BrBrowsable::get(int /*attributeId*/, long long* value) { *value = 0; }
void BrBrowsable::get(int /*attributeId*/, int /*index*/, Vector<LiString>* value) {
  value->clear();
}
void BrBrowsable::get(int /*attributeId*/, Vector<LiString>* value) { value->clear(); }
void BrBrowsable::get(int /*attributeId*/, int /*index*/, LiString* value) {
  *value = NotAvailableString;
}
void BrBrowsable::get(int /*attributeId*/, LiString* value) { *value = NotAvailableString; }

void BrBrowsable::setDtTime(int /*attributeId*/, DtTime const& /*value*/) {}
void BrBrowsable::getDtTime(int /*attributeId*/, DtTime* /*value*/) {}
void BrBrowsable::getDate(int /*attributeId*/, LiDate* /*value*/) {}

RCShdPtr<WsManagedImage> BrBrowsable::getImage(int /*imageId*/, GeVector2<int> const& /*size*/) {
  return RCShdPtr<WsManagedImage>();
}
std::string BrBrowsable::getTooltip(int /*attributeId*/) const { return ""; }

bool BrBrowsable::areDetailsLoaded() const { return true; }
bool BrBrowsable::isThumbnailLoaded() const { return true; }
bool BrBrowsable::wasInterrupted() const { return false; }
void BrBrowsable::loadDetails() {}
void BrBrowsable::loadThumbnail() {}
void BrBrowsable::cancelDetailsRequest() {}
void BrBrowsable::cancelThumbnailRequest() {}
void BrBrowsable::notifyClick(int /*attributeId*/) {}
bool BrBrowsable::isAttributeEditable(int /*attributeId*/) const { return false; }
bool BrBrowsable::hasSpecialBgColor() const { return false; }
bool BrBrowsable::hasSpecialFgColor() const { return false; }
LiString BrBrowsable::getTypeName() const { return ""; }
void BrBrowsable::appendSelection(List<RCShdPtr<SnItem const>>& /*items*/) {}
bool BrBrowsable::isSelected(RCShdPtr<SnSelection> const& /*selection*/) const { return false; }
bool BrBrowsable::isPicklistable() const { return false; }
bool BrBrowsable::isAnyChildSelected(RCShdPtr<SnSelection> const& /*selection*/) const {
  return false;
}
void BrBrowsable::select(bool /*selected*/) {}
bool BrBrowsable::supportsSequence() { return false; }
LiString BrBrowsable::getUniqueId() { return getSchemeName() + ":" + getPath(); }
RCShdPtr<BrThumbnailDetailList> BrBrowsable::getThumbnailDetails() {
  return getNonCachedThumbnailDetails();
}
LiString BrBrowsable::getPermission() const { return ""; }
bool BrBrowsable::canSetPlayTarget() const { return false; }
void BrBrowsable::setPlayTarget(RCShdPtr<VpPlayer> const& /*player*/) const {}
void BrBrowsable::getInputPolicy(int /*attributeId*/,
                                 RCShdPtr<PiInputPolicy const>& /*policy*/) const {}
void BrBrowsable::configureWidget(int /*attributeId*/, RCShdPtr<UiWidget>& /*widget*/) {}
void BrBrowsable::removeWidgets(Set<int> const& /*attributeIds*/) {}
GeRectangle<int> BrBrowsable::transformWidgetRect(int /*attributeId*/,
                                                  GeRectangle<int> const& rect) const {
  return rect;
}
bool BrBrowsable::canDrag(EvDeviceEvent& /*event*/) const { return true; }
RCShdPtr<BrThumbnailDetailList> BrBrowsable::getNonCachedThumbnailDetails() {
  return RCShdPtr<BrThumbnailDetailList>();
}

} // namespace Qv
