#pragma once

#include "brBrowsable.h"
#include "uiLabel.h"
#include "uiPane.h"
#include "uiTextEditor.h"

namespace Qv {

class UiResTable;

/// Builds a detail page, field by field, from a table of resources.
class QV_EXPORT BvDetailMgr : public RCBase<LkCounter<int>> {
protected:
  ~BvDetailMgr() override;

public:
  /// Hands over the item on show, of which the manager shows the thumbnail in the icon pane.
  virtual void setBrowsable(RCShdPtr<BrBrowsable> const& item);

  /// Builds the page container described under `name`. @param parent null for a page of its own.
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
  /// The pane meant for the item's icon.
  RCShdPtr<UiPane> getIconPane();

private:
  explicit BvDetailMgr(RCShdPtr<UiContainer> const& page);

  RCShdPtr<UiLabel> addLabel(char const* name, UiResTable const* resources);

  RCShdPtr<UiContainer> page_;
  RCShdPtr<UiPane> generalInfoPane_;
  RCShdPtr<UiPane> iconPane_;
};

} // namespace Qv
