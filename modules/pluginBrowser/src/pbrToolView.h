#pragma once

#include "pbrInstances.h"

#include "brDetailView.h"
#include "bvDetailMgr.h"
#include "uiSplitPane.h"

namespace Qv {

/// The detail page of a tool: three texts and whether it is active, read from the tool registry
/// each time an item is shown. The browser shows clones of the registered view.
class QV_EXPORT PbrToolView : public BrDetailView {
public:
  /// A view without widgets.
  PbrToolView();
  ~PbrToolView() override;

  /// A new view without widgets, owned by the caller.
  OPtrRet<BrView> clone() const override;
  /// True for tools, and for super tools at any level.
  bool understands(RCShdPtr<BrBrowsable> const& item) override;
  /// Shows an item. The fields are empty when the registry knows no such tool.
  /// @throws ExNullPtr when the widgets have not been built.
  void setContent(RCShdPtr<BrBrowsable> const& item,
                  RCShdPtr<SnSelection> const& selection) override;
  void externalClose() override;
  /// Builds the widgets: once, or again after it failed.
  void buildUi(RCShdPtr<SnSelection> const& selection) override;
  /// Adds the fields as the page "Information". @throws ExNullPtr when the widgets have not been
  /// built.
  void setDetailInfo() override;

private:
  static OsFilePath const ResourceFile;

  RCShdPtr<BvDetailMgr> buildDetails(UiResTable const* resources);
  /// A field's value; null when it has not been built.
  RCShdPtr<UiWidget> getFieldValue(std::size_t field) const;

  Vector<RCShdPtr<UiLabel>> fieldTitles_;
  Vector<RCShdPtr<UiWidget>> fieldValues_;
  RCShdPtr<UiSplitPane> iconSplitPane_;
  RCShdPtr<BvDetailMgr> detailMgr_;
};

} // namespace Qv
