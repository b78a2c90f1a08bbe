#pragma once

#include "liString.h"
#include "uiWidget.h"

namespace Qv {

/// A multi-line text box.
class QV_EXPORT UiTextEditor : public UiWidget {
public:
  void setString(LiString const& text);
  void setEditable(bool editable);

  /// @name Stand-in only
  /// @{
  explicit UiTextEditor(std::string const& name);

  LiString const& getString() const { return text_; }
  bool isEditable() const { return editable_; }
  /// @}

protected:
  ~UiTextEditor() override;

private:
  LiString text_;
  bool editable_ = true;
};

} // namespace Qv
