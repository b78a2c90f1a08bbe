#pragma once

#include "brDetailView.h"
#include "items.h"

#include <map>
#include <optional>

namespace Qv {

/// A widget and all within it.
struct Widget {
  struct Split {
    int orientation;
    /// The name of the pane that is open, if any.
    std::optional<std::string> open;
  };

  std::string className;
  std::string name;
  /// Of a label or a text editor.
  std::optional<std::string> text;
  /// Of a text editor.
  std::optional<bool> editable;
  /// In pixels, as is `height`; 0 leaves the side to the layout.
  int width = 0;
  int height = 0;
  /// As "#rrggbb", by property.
  std::map<std::string, std::string> colors;
  /// Null where none is shown.
  RCShdPtr<WsManagedImage> image{};
  /// Of a split pane.
  std::optional<Split> split;
  std::vector<Widget> children;
};

/// A clone of the view that shows items in detail, built and ready to show any item.
class DetailPage {
public:
  /// What the page shows of one item.
  struct Content {
    struct Field {
      /// The title of its page.
      std::string page;
      std::string title;
      std::string value;
      bool editable;
      /// As "#rrggbb"; empty for the standard colour.
      std::string background;
    };

    std::string view;
    /// Whether the view is meant for the item.
    bool understood;
    std::vector<Field> fields;
    std::optional<Widget> iconPane;
  };

  /// A page of the view that understands `item`; nothing when there is no such view.
  static std::optional<DetailPage> create(RCShdPtr<BrBrowsable> const& item);

  Content show(RCShdPtr<BrBrowsable> const& item);
  /// Tells the view that nobody looks at it any more.
  void close() { view_->externalClose(); }
  /// The outermost widget of each page and of the icon pane.
  std::vector<Widget> getWidgets() const;

private:
  explicit DetailPage(OPtr<BrDetailView> view);

  OPtr<BrDetailView> view_;
};

} // namespace Qv
