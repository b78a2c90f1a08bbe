#include "detailView.h"

#include "images.h"
#include "text.h"

#include "uiWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace Qv {

namespace {

QString readableOn(QColor const& background) {
  return background.lightnessF() < 0.5 ? "white" : "black";
}

/// A label that shows as much of its text as there is room for, and the whole one as a tooltip.
class ElidedLabel : public QLabel {
public:
  explicit ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  void setText(std::string const& text) {
    whole_ = shown(text);
    setToolTip(shown(text, Place::Tooltip));
    setAccessibleName(whole_);
    fit();
  }

protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    fit();
  }

private:
  void fit() {
    QLabel::setText(fontMetrics().elidedText(whole_, Qt::ElideRight, std::max(width(), 20)));
  }

  QString whole_;
};

void setImage(QLabel& label, RCShdPtr<WsManagedImage> const& image) {
  label.setPixmap(QPixmap::fromImage(toImage(image)));
}

void setSize(QWidget& widget, Widget const& described) {
  if (described.width > 0)
    widget.setFixedWidth(described.width);
  if (described.height > 0)
    widget.setFixedHeight(described.height);
}

} // namespace

DetailView::DetailView(Failures& failures)
    : failures_(failures), title_(new QLabel(this)), thumbnail_(new QLabel(this)),
      layout_(new QVBoxLayout(this)) {
  setAccessibleName("Details");
  title_->setTextFormat(Qt::PlainText);
  title_->setWordWrap(true);
  thumbnail_->setAccessibleName("Thumbnail");
  layout_->addWidget(thumbnail_, 0, Qt::AlignHCenter);
  layout_->addWidget(title_);
  layout_->addStretch();
  show(RCShdPtr<BrBrowsable>());
}

DetailView::~DetailView() { close(); }

void DetailView::close() {
  delete surface_;
  surface_ = nullptr;
  drawn_.clear();
  if (page_)
    failures_.guard([&] { page_->close(); });
  page_.reset();
}

bool DetailView::show(RCShdPtr<BrBrowsable> const& item) {
  thumbnail_->clear();
  thumbnail_->show();
  title_->setText("Select an item to see its details.");
  if (surface_)
    surface_->hide();
  if (item)
    failures_.guard([&] { showPage(item); });
  bool const hasPage = surface_ && surface_->isVisibleTo(this);
  title_->setVisible(!hasPage);
  return hasPage;
}

void DetailView::showPage(RCShdPtr<BrBrowsable> const& item) {
  title_->setText(shown(getAttribute(*item, BrBrowsable::NAME) + " has no detail page."));
  setImage(*thumbnail_, item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128}));
  std::optional<DetailPage::Content> content;
  if (page_)
    content = page_->show(item);
  if (!content || !content->understood) {
    std::optional<DetailPage> other = DetailPage::create(item);
    if (!other)
      return;
    close();
    page_ = std::move(other);
    content = page_->show(item);
  }
  thumbnail_->setVisible(!content->iconPane);

  std::vector<Widget> const widgets = page_->getWidgets();
  std::size_t next = 0;
  bool same = surface_ != nullptr;
  for (Widget const& widget : widgets)
    same = same && update(widget, next);
  if (!same || next != drawn_.size()) {
    delete surface_;
    drawn_.clear();
    surface_ = new QWidget(this);
    auto* const column = new QVBoxLayout(surface_);
    column->setContentsMargins(0, 0, 0, 0);
    // The icon pane comes last of the widgets, and first on the page.
    for (Widget const& widget : widgets)
      column->insertWidget(0, draw(widget, palette().color(QPalette::Window), 0, surface_), 0,
                           Qt::AlignLeft);
    layout_->insertWidget(0, surface_);
    next = 0;
    for (Widget const& widget : widgets)
      update(widget, next);
  }
  surface_->show();
}

QWidget* DetailView::draw(Widget const& described, QColor const& around, int room,
                          QWidget* parent) {
  QColor background = around;
  if (auto const found = described.colors.find(UiWidget::BackgroundColor);
      found != described.colors.end())
    background = QColor(QString::fromStdString(found->second));
  QWidget* widget = nullptr;
  if (described.editable) {
    auto* const box = new QPlainTextEdit(parent);
    // What users would type could not be handed to the module.
    box->setReadOnly(true);
    box->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setTabChangesFocus(true);
    widget = box;
  } else if (described.text) {
    widget = new ElidedLabel(parent);
  } else if (described.children.empty()) {
    widget = new QLabel(parent);
    widget->setAccessibleName("Thumbnail");
  } else {
    widget = new QWidget(parent);
  }
  drawn_.push_back({described.className, described.name, widget});
  if (background != around) {
    widget->setAutoFillBackground(true);
    QPalette colors = widget->palette();
    QColor const text = readableOn(background);
    for (QPalette::ColorRole const role : {QPalette::Window, QPalette::Base})
      colors.setColor(role, background);
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text})
      colors.setColor(role, text);
    widget->setPalette(colors);
  }
  if (described.children.empty()) {
    setSize(*widget, described);
    return widget;
  }

  // Children stand side by side as far as the width goes, then one row below the other.
  auto* const rows = new QVBoxLayout(widget);
  constexpr int Margin = 6;
  int const margin = described.width > 0 ? Margin : 0;
  rows->setContentsMargins(margin, margin, margin, margin);
  if (described.width > 0)
    room = described.width - 2 * Margin;
  rows->setSpacing(Margin);
  QHBoxLayout* row = nullptr;
  int left = 0;
  for (Widget const& child : described.children) {
    if (!row || child.width == 0 || child.width > left) {
      row = new QHBoxLayout;
      rows->addLayout(row);
      left = room;
    }
    left -= child.width + Margin;
    row->addWidget(draw(child, background, room, widget), 0, Qt::AlignTop | Qt::AlignLeft);
  }
  rows->addStretch();
  if (described.width > 0)
    widget->setMinimumSize(described.width, described.height);
  return widget;
}

bool DetailView::update(Widget const& described, std::size_t& next) {
  if (next == drawn_.size() || drawn_[next].className != described.className ||
      drawn_[next].name != described.name)
    return false;
  QWidget* const widget = drawn_[next++].widget;
  if (auto* const box = dynamic_cast<QPlainTextEdit*>(widget)) {
    box->setPlainText(shown(described.text.value_or(""), Place::Box));
    box->setAccessibleName(next > 1 ? drawn_[next - 2].widget->accessibleName() : QString());
  } else if (auto* const label = dynamic_cast<ElidedLabel*>(widget)) {
    label->setText(described.text.value_or(""));
  } else if (auto* const image = dynamic_cast<QLabel*>(widget)) {
    setImage(*image, described.image);
  }
  for (Widget const& child : described.children) {
    std::size_t const place = next;
    if (!update(child, next))
      return false;
    if (described.split)
      drawn_[place].widget->setVisible(described.split->open == child.name);
  }
  return true;
}

} // namespace Qv
