#pragma once

#include "liString.h"
#include "uiWidget.h"

namespace Qv {

/// A box of text, of several lines.
class QV_EXPORT UiTextEditor : public UiWidget {
public:
  /// Shows a text in place of the one before.
  void setString(LiString const& text);
  /// Lets a person change the text, or not.
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
