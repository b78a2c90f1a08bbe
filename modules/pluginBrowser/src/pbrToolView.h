#pragma once

#include "pbrInstances.h"

#include "brDetailView.h"
#include "bvDetailMgr.h"
#include "uiSplitPane.h"

namespace Qv {

/// The detail page of a tool: three texts and its state, read from the tool registry whenever an
/// item is shown. The browser shows clones of the registered view.
class QV_EXPORT PbrToolView : public BrDetailView {
public:
  /// A view without widgets.
  PbrToolView();
  ~PbrToolView() override;

  /// A new view without widgets, owned by the caller.
  OPtrRet<BrView> clone() const override;
  /// True for tools, and for super tools at any level.
  bool understands(RCShdPtr<BrBrowsable> const& item) override;
  /// Shows an item. The fields are empty if the registry has no such tool.
  /// @throws ExNullPtr if the widgets have not been built.
  void setContent(RCShdPtr<BrBrowsable> const& item,
                  RCShdPtr<SnSelection> const& selection) override;
  void externalClose() override;
  /// Builds the widgets: once, or again after a failure.
  void buildUi(RCShdPtr<SnSelection> const& selection) override;
  /// Adds the fields as the page "Information". @throws ExNullPtr if the widgets have not been
  /// built.
  void setDetailInfo() override;

private:
  static OsFilePath const ResourceFile;

  RCShdPtr<BvDetailMgr> buildDetails(UiResTable const* resources);
  /// Null if the field has not been built.
  RCShdPtr<UiWidget> getFieldValue(std::size_t field) const;

  Vector<RCShdPtr<UiLabel>> fieldTitles_;
  Vector<RCShdPtr<UiWidget>> fieldValues_;
  RCShdPtr<UiSplitPane> iconSplitPane_;
  RCShdPtr<BvDetailMgr> detailMgr_;
};

} // namespace Qv
