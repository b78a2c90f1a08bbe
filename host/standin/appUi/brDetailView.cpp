#include "brDetailView.h"

#include "hostJournal.h"
#include "hostOpaque.h"
#include "uiResTable.h"

namespace Qv {

BrDetailView::BrDetailView(LiString const& name, OsFilePath const& resourceFile) : name_(name) {
  resTable_ = OPtr<UiResTable>(new UiResTable(resourceFile));
}

BrDetailView::~BrDetailView() = default;

void BrDetailView::setFullScreenHandler(CbHandler<EvEvent>* /*handler*/) {}

// NOLINTNEXTLINE(readability-const-return-type): the interface returns const.
RCShdPtr<VpPlayer> const BrDetailView::getMiniPlayer() const { return RCShdPtr<VpPlayer>(); }

void BrDetailView::addDetailInfoPage(RCShdPtr<UiWidget> page, LiString const& title) {
  HostJournal::getInstance().record("BrDetailView::addDetailInfoPage", title, page->getName());
  pages_.push_back({title, std::move(page)});
}

void BrDetailView::setIconPane(RCShdPtr<UiPane> pane) {
  HostJournal::getInstance().record("BrDetailView::setIconPane", name_, pane->getName());
  iconPane_ = std::move(pane);
}

} // namespace Qv
