#pragma once

#include "brBrowsable.h"
#include "uiLabel.h"
#include "uiPane.h"
#include "uiTextEditor.h"

namespace Qv {

class UiResTable;

/// Builds a detail page, field by field, from a resource table.
class QV_EXPORT BvDetailMgr : public RCBase<LkCounter<int>> {
protected:
  ~BvDetailMgr() override;

public:
  /// Sets the item whose host-side details the manager shows.
  virtual void setBrowsable(RCShdPtr<BrBrowsable> const& item);

  /// Builds the page container described under `name`. @param parent null for a top-level page.
  static RCShdPtr<BvDetailMgr> create(RCShdPtr<UiContainer> const& parent, char const* name,
                                      UiResTable const* resources);

  /// Adds the label described under `name` to the fields as the next title.
  RCShdPtr<UiLabel> createAndAddTitleLabel(char const* name, UiResTable const* resources);
  /// Adds the label described under `name` to the fields as the next value.
  RCShdPtr<UiLabel> createAndAddValueLabel(char const* name, UiResTable const* resources);
  /// Adds the text editor described under `name` to the fields as the next value.
  RCShdPtr<UiTextEditor> createAndAddValueTextEditor(char const* name, UiResTable const* resources);

  /// The pane that holds the fields, a title before each value.
  RCShdPtr<UiPane> getGeneralInfoPane();
  /// The pane for the item's icon.
  RCShdPtr<UiPane> getIconPane();

private:
  explicit BvDetailMgr(RCShdPtr<UiContainer> const& page);

  RCShdPtr<UiLabel> addLabel(char const* name, UiResTable const* resources);

  RCShdPtr<UiContainer> page_;
  RCShdPtr<UiPane> generalInfoPane_;
  RCShdPtr<UiPane> iconPane_;
};

} // namespace Qv
