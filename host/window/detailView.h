#pragma once

#include "detailPage.h"
#include "failures.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace Qv {

/// Shows an item on the detail page that the module has for it, drawn from the page's widgets, and
/// its thumbnail. An item without a page is shown with its thumbnail alone.
class DetailView : public QWidget {
public:
  explicit DetailView(Failures& failures);
  ~DetailView() override;

  /// Null shows that nothing is selected. @returns whether the item has a page.
  bool show(RCShdPtr<BrBrowsable> const& item);

private:
  /// A widget of the page with the one that draws it.
  struct Drawn {
    std::string className;
    std::string name;
    QWidget* widget;
  };

  void showPage(RCShdPtr<BrBrowsable> const& item);
  void close();
  QWidget* draw(Widget const& described, QColor const& around, int room, QWidget* parent);
  /// Brings the texts and images up to date. @returns false when the page has other widgets now.
  bool update(Widget const& described, std::size_t& next);

  Failures& failures_;
  std::optional<DetailPage> page_;
  QWidget* surface_ = nullptr;
  std::vector<Drawn> drawn_;
  QLabel* title_;
  QLabel* thumbnail_;
  QVBoxLayout* layout_;
};

} // namespace Qv
