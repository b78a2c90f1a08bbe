#include "brView.h"

#include "uiResTable.h"

namespace Qv {

LiString BrView::DETAIL("detail");

UiResHolder::UiResHolder() = default;

UiResHolder::~UiResHolder() = default;

UiResTable const* UiResHolder::getResTable() const { return resTable_.get(); }

BrView::~BrView() = default;

bool BrView::setFullScreen() { return false; }
void BrView::setFullScreenFocus() {}
void BrView::map() {}
void BrView::unMap() {}
void BrView::mapCb(EvEvent& /*event*/) {}
void BrView::unMapCb(EvEvent& /*event*/) {}

} // namespace Qv
