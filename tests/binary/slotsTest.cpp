#include "pbrInstances.h"

#include "actTypedAction.h"
#include "bvDetailMgr.h"
#include "hostActRegistry.h"
#include "hostBrRegistry.h"
#include "hostIconRegistry.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostWorkspace.h"
#include "inBuildInfo.h"
#include "pbrDraggedItems.h"
#include "pbrToolBrowsable.h"
#include "pbrToolChildrenQuerys.h"
#include "pbrToolDndHandler.h"
#include "pbrToolServer.h"
#include "pbrToolView.h"
#include "pbrViewBrowsable.h"
#include "pbrViewChildrenQuery.h"
#include "pbrViewDndHandler.h"
#include "pbrViewServer.h"
#include "pluginBrowserQvmoduleInit.h"
#include "snSelection.h"
#include "vtables.h"

#include <gmock/gmock.h>

namespace Qv {

namespace {

using testing::ElementsAreArray;
using Table = std::vector<std::string>;

/// Replaces "$" in each slot by a class name.
Table inClass(std::string const& name, Table slots) {
  for (std::string& slot : slots)
    for (std::size_t at = slot.find('$'); at != std::string::npos; at = slot.find('$', at))
      slot.replace(at, 1, name);
  return slots;
}

TEST(Slots, ofThePackage) {
  EXPECT_THAT(slots(typeid(InInit<QvInit::pluginBrowserQvmodule>)),
              ElementsAreArray(inClass("InInit<QvInit::pluginBrowserQvmodule>",
                                       {"~", "InPackageInit::addDependency(InVariableBase*)",
                                        "InPackageInit::removeDependency(InVariableBase*)",
                                        "InPackageInit::getName() const", "$::packageHookA()",
                                        "$::packageHookB()", "$::initialize()", "$::uninitialize()",
                                        "$::setPackageFlag(bool)"})));
}

/// The slots of a server of that class.
Table serverSlots(std::string const& name) {
  return inClass(
      name,
      {"~",
       "$::clone() const",
       "$::getNode(LiString const&, LiString&)",
       "BrServer::getNodeFromBrowsable(RCShdPtr<BrBrowsable> const&, LiString&) const",
       "$::getSchemeName() const",
       "BrServer::getRootPath(LiString const&) const",
       "BrServer::getRootNode()",
       "BrServer::getDefaultPath() const",
       "BrServer::resolvePath(LiString const&) const",
       "BrServer::getPathSeparator() const",
       "BrServer::getPathInvalidChars() const",
       "$::isObservable() const",
       "BrServer::getParentPath(LiString const&) const",
       "BrServer::supportsSequences() const",
       "BrServer::updateSequenceInfo(RCShdPtr<BrNode> const&, Vector<RCShdPtr<BrNode>> const&, "
       "Vector<RCShdPtr<BrNode>>&, bool)",
       "BrServer::getFilterOptions() const",
       "BrServer::getBrowserRole() const",
       "BrServer::expandSequences(RCShdPtr<BrNode> const&, Vector<RCShdPtr<BrNode>> const&, "
       "Vector<RCShdPtr<BrNode>>&)",
       "BrServer::getAttributesList() const",
       "BrServer::isDetailBelow() const",
       "BrServer::selected(RCShdPtr<RCBase<LkCounter<int>>> const&)",
       "BrServer::unselected(RCShdPtr<RCBase<LkCounter<int>>> const&)",
       "BrServer::nodeExpanded(RCShdPtr<BrNode> const&)",
       "BrServer::parentNodeExpanded(RCShdPtr<BrNode> const&)",
       "BrServer::nodeCollapsed(RCShdPtr<BrNode> const&)",
       "BrServer::parentNodeCollapsed(RCShdPtr<BrNode> const&)",
       "BrServer::getCommandStack() const",
       "BrServer::rescanPerformed()",
       "BrServer::isChildrenScanForeground() const"});
}

TEST(Slots, ofServers) {
  EXPECT_THAT(slots(typeid(PbrToolServer)), ElementsAreArray(serverSlots("PbrToolServer")));
  EXPECT_THAT(slots(typeid(PbrViewServer)), ElementsAreArray(serverSlots("PbrViewServer")));
}

/// The slots of an item of that class.
Table browsableSlots(std::string const& name) {
  return inClass(
      name, {"~",
             "$::getSchemeName() const",
             "$::getPath() const",
             "BrBrowsable::set(int, int, CoRgbColorTyped<float> const&)",
             "BrBrowsable::set(int, CoRgbColorTyped<float> const&)",
             "BrBrowsable::set(int, float)",
             "$::set(int, long long)",
             "BrBrowsable::set(int, Vector<LiString> const&)",
             "$::set(int, LiString const&)",
             "BrBrowsable::get(int, int, CoRgbColorTyped<float>*)",
             "BrBrowsable::get(int, CoRgbColorTyped<float>*)",
             "BrBrowsable::get(int, float*)",
             "$::get(int, long long*)",
             "BrBrowsable::get(int, int, Vector<LiString>*)",
             "BrBrowsable::get(int, Vector<LiString>*)",
             "BrBrowsable::get(int, int, LiString*)",
             "$::get(int, LiString*)",
             "BrBrowsable::setDtTime(int, DtTime const&)",
             "BrBrowsable::getDtTime(int, DtTime*)",
             "BrBrowsable::getDate(int, LiDate*)",
             "$::getImage(int, GeVector2<int> const&)",
             "$::getTooltip(int) const",
             "BrBrowsable::areDetailsLoaded() const",
             "BrBrowsable::isThumbnailLoaded() const",
             "BrBrowsable::wasInterrupted() const",
             "BrBrowsable::loadDetails()",
             "BrBrowsable::loadThumbnail()",
             "BrBrowsable::cancelDetailsRequest()",
             "BrBrowsable::cancelThumbnailRequest()",
             "BrBrowsable::notifyClick(int)",
             "BrBrowsable::isAttributeEditable(int) const",
             "$::isAContainer() const",
             "$::hasChildren(BrBrowsable::ChildSearchType, BrBrowsable::ChildSearchOption) const",
             "BrBrowsable::hasSpecialBgColor() const",
             "BrBrowsable::hasSpecialFgColor() const",
             "$::getChildren(BrBrowsable::FindFilter)",
             "BrBrowsable::getTypeName() const",
             "$::isEqualTo(BrBrowsable const&) const",
             "BrBrowsable::appendSelection(List<RCShdPtr<SnItem const>>&)",
             "BrBrowsable::isSelected(RCShdPtr<SnSelection> const&) const",
             "$::isPicklistable() const",
             "BrBrowsable::isAnyChildSelected(RCShdPtr<SnSelection> const&) const",
             "BrBrowsable::select(bool)",
             "BrBrowsable::supportsSequence()",
             "BrBrowsable::getUniqueId()",
             "BrBrowsable::getThumbnailDetails()",
             "BrBrowsable::getPermission() const",
             "BrBrowsable::canSetPlayTarget() const",
             "BrBrowsable::setPlayTarget(RCShdPtr<VpPlayer> const&) const",
             "BrBrowsable::getInputPolicy(int, RCShdPtr<PiInputPolicy const>&) const",
             "BrBrowsable::configureWidget(int, RCShdPtr<UiWidget>&)",
             "BrBrowsable::removeWidgets(Set<int> const&)",
             "BrBrowsable::transformWidgetRect(int, GeRectangle<int> const&) const",
             "BrBrowsable::canDrag(EvDeviceEvent&) const",
             "BrBrowsable::getNonCachedThumbnailDetails()"});
}

TEST(Slots, ofBrowsables) {
  EXPECT_THAT(slots(typeid(PbrToolBrowsable)),
              ElementsAreArray(browsableSlots("PbrToolBrowsable")));
  EXPECT_THAT(slots(typeid(PbrViewBrowsable)),
              ElementsAreArray(browsableSlots("PbrViewBrowsable")));
}

TEST(Slots, ofChildrenQueries) {
  Table const table = {"~", "$::reset()", "$::getNextChildSequence()"};
  EXPECT_THAT(slots(typeid(PbrToolChildrenQuerys)),
              ElementsAreArray(inClass("PbrToolChildrenQuerys", table)));
  EXPECT_THAT(slots(typeid(PbrViewChildrenQuery)),
              ElementsAreArray(inClass("PbrViewChildrenQuery", table)));
}

TEST(Slots, ofDragAndDropHandlers) {
  std::string const item = "RCShdPtr<BrBrowsable> const&";
  std::string const drag = item + ", RCShdPtr<DrCarrier> const&";
  Table const table = {"~",
                       "$::willPopulateSelection(" + item + ")",
                       "$::populateSelection(" + drag + ")",
                       "$::willConsumeSelection(" + drag + ")",
                       "$::consumeSelection(" + drag + ", RCShdPtr<SnSelection> const&)",
                       "BrDndHandler::createUrl(" + drag + ")",
                       "$::willCut(" + item + ")",
                       "BrDndHandler::willCopy(" + item + ")",
                       "BrDndHandler::dragAndDropComplete(" + drag + ")"};
  EXPECT_THAT(slots(typeid(PbrToolDndHandler)),
              ElementsAreArray(inClass("PbrToolDndHandler", table)));
  EXPECT_THAT(slots(typeid(PbrViewDndHandler)),
              ElementsAreArray(inClass("PbrViewDndHandler", table)));
}

TEST(Slots, ofSelectionItems) {
  Table const table = {"~",
                       "$::clone() const",
                       "$::isEqual(SnItem const&) const",
                       "$::dump(std::ostream&) const",
                       "SnItem::snapshot() const",
                       "SnItem::restore() const"};
  EXPECT_THAT(slots(typeid(DraggedToolItem)),
              ElementsAreArray(inClass("SnItemBasic<RCShdPtr<PiNodeDndInterface const>>", table)));
  EXPECT_THAT(slots(typeid(DraggedViewItem)),
              ElementsAreArray(inClass("SnItemBasic<UiViewIdentifier>", table)));
  // addItem() is the fourth.
  EXPECT_THAT(slots(typeid(SnSelection)), ElementsAreArray({"~", "pure", "pure", "pure"}));
}

TEST(Slots, ofDetailViews) {
  EXPECT_THAT(slots(typeid(PbrToolView)),
              ElementsAreArray(inClass(
                  "PbrToolView",
                  {"~", "$::clone() const", "$::understands(RCShdPtr<BrBrowsable> const&)",
                   "$::setContent(RCShdPtr<BrBrowsable> const&, RCShdPtr<SnSelection> const&)",
                   "$::externalClose()", "$::buildUi(RCShdPtr<SnSelection> const&)",
                   "BrView::setFullScreen()", "BrView::setFullScreenFocus()", "BrView::map()",
                   "BrView::unMap()", "BrView::mapCb(EvEvent&)", "BrView::unMapCb(EvEvent&)",
                   "BrDetailView::setFullScreenHandler(CbHandler<EvEvent>*)", "$::setDetailInfo()",
                   "BrDetailView::getMiniPlayer() const"})));
}

TEST(Slots, ofActions) {
  using Action = ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>;
  std::string const items = "RCShdPtr<SnItem const> const&, RCShdPtr<SnItem const> const&";
  std::string const values = "RCShdPtr<BrBrowser> const&, RCShdPtr<BrNode> const&";
  EXPECT_THAT(slots(typeid(Action)),
              ElementsAreArray(
                  inClass("ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>",
                          {"~", "$::inputValid(" + items + ") const",
                           "$::performAction(" + items + ", RCShdPtr<SnSelection> const&) const",
                           "$::enumOptions(" + items + ", Vector<LiString>&) const", "pure",
                           "ActAction::getDisplayString() const", "ActAction::getGroup() const",
                           "ActAction::getCompositeName() const", "pure", "pure",
                           "$::typedEnumOptions(" + values + ", Vector<LiString>&) const"})));
}

TEST(Slots, ofTheHostsRegistries) {
  EXPECT_THAT(slots(typeid(HostToolRegistry)),
              ElementsAreArray(inClass(
                  "HostToolRegistry",
                  {"$::findTool(std::string const&, bool)", "$::getTool(std::string const&)",
                   "$::getTools(PrdPredicate<RCShdPtr<PiTool const>> const&, bool)",
                   "$::getCategories()", "$::isSuperTool(std::string const&)"})));
  EXPECT_THAT(slots(typeid(HostBrRegistry)),
              ElementsAreArray(inClass(
                  "HostBrRegistry",
                  {"$::registerServer(OPtr<BrServer>)", "$::registerView(OPtr<BrView>, LiString)",
                   "$::getThumbnail(LiString const&, LiString const&)",
                   "$::registerIcon(LiString const&, RCShdPtr<WsManagedImage> const&, "
                   "LiString const&)"})));
  EXPECT_THAT(slots(typeid(HostTtServer)),
              ElementsAreArray({"HostTtServer::lookupTooltip(std::string const&)"}));
  EXPECT_THAT(slots(typeid(HostIconRegistry)),
              ElementsAreArray({"HostIconRegistry::loadImage(OsFilePath const&)"}));
}

TEST(Slots, ofWhatTheHostHandsOut) {
  EXPECT_THAT(
      slots(typeid(HostTool)),
      ElementsAreArray(inClass("HostTool", {"~", "$::isActive() const", "$::getInfoText1() const",
                                            "$::getInfoText2() const", "$::getInfoText3() const",
                                            "$::getName() const"})));
  EXPECT_THAT(slots(typeid(HostActRegistry)),
              ElementsAreArray({"HostActRegistry::registerAction(OPtr<ActAction>, "
                                "ActRegistry::DynamicState)"}));
  EXPECT_THAT(slots(typeid(HostWorkspace)),
              ElementsAreArray(
                  inClass("HostWorkspace", {"~", "$::openViewInWindow(std::string const&, bool)",
                                            "$::openViewInNewWindow(std::string const&)"})));
  EXPECT_THAT(slots(typeid(BvDetailMgr)),
              ElementsAreArray({"~", "BvDetailMgr::setBrowsable(RCShdPtr<BrBrowsable> const&)"}));
  EXPECT_THAT(
      slots(typeid(UiLabel)),
      ElementsAreArray({"~", "UiWidget::setColor(char const*, CoRgbColorTyped<float> const&)"}));
}

TEST(Slots, ofWhatTheRegistriesKeep) {
  EXPECT_THAT(slots(typeid(BrNode)), ElementsAreArray({"~", "pure"}));
  EXPECT_THAT(slots(typeid(InBuildInfo)).size(), 12U);
}

/// The slots of an iterator over `element`; `self` is the iterator's own name.
Table iteratorSlots(std::string const& element) {
  Table table = {"~",
                 "$::operator->() const",
                 "$::operator->()",
                 "$::item() const",
                 "$::item()",
                 "$::operator*() const",
                 "$::operator*()",
                 "$::first()",
                 "$::last()",
                 "$::end()",
                 "$::atEnd() const",
                 "$::atBegin() const",
                 "$::next()",
                 "$::previous()",
                 "$::getCardinality() const",
                 "$::operator++(int)",
                 "$::operator++()",
                 "$::operator--(int)",
                 "$::operator--()"};
  return inClass("Iterator<" + element + ">", table);
}

TEST(Slots, ofIterators) {
  EXPECT_THAT(slots(typeid(Iterator<std::string>)), ElementsAreArray(iteratorSlots("std::string")));
  EXPECT_THAT(slots(typeid(Iterator<RCShdPtr<BrBrowsable>>)),
              ElementsAreArray(iteratorSlots("RCShdPtr<BrBrowsable>")));
  EXPECT_THAT(slots(typeid(Iterator<RCShdPtr<PiTool const>>)),
              ElementsAreArray(iteratorSlots("RCShdPtr<PiTool const>")));
  EXPECT_THAT(slots(typeid(Iterator<LiString>)), ElementsAreArray(iteratorSlots("LiString")));
}

TEST(Slots, ofIteratorEngines) {
  auto const engineSlots = [](std::string const& container, std::string const& element) {
    return inClass("IteratorSTL<" + container + ", RCStrongPtr<" + container +
                       ">, IteratorAccessorPassthrough>",
                   {"~", "$::isEqual(IteratorImp<" + element + "> const&) const", "$::item() const",
                    "$::item()", "$::first()", "$::last()", "$::end()", "$::atEnd() const",
                    "$::atBegin() const", "$::next()", "$::previous()", "$::getCardinality() const",
                    "$::clone() const"});
  };
  EXPECT_THAT(slots(typeid(NamesEngine)),
              ElementsAreArray(engineSlots("Vector<std::string>", "std::string")));
  EXPECT_THAT(
      slots(typeid(BrBrowsablesEngine)),
      ElementsAreArray(engineSlots("List<RCShdPtr<BrBrowsable>>", "RCShdPtr<BrBrowsable>")));
}

} // namespace

} // namespace Qv
