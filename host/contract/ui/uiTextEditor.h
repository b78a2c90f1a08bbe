#pragma once

#include "liString.h"
#include "uiWidget.h"

namespace Qv {

/// A box of text, of several lines.
class QV_EXPORT UiTextEditor : public UiWidget {
public:
  explicit UiTextEditor(std::string const& name);

  void setString(LiString const& text);
  void setEditable(bool editable);

  LiString const& getString() const { return text_; }
  bool isEditable() const { return editable_; }

protected:
  ~UiTextEditor() override;

private:
  LiString text_;
  bool editable_ = true;
};

} // namespace Qv
