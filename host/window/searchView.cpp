#include "searchView.h"

#include "workspace.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QTimerEvent>
#include <fmt/format.h>

namespace Qv {

SearchView::SearchView(Failures& failures, Report report, GoTo goTo)
    : failures_(failures), report_(std::move(report)), goTo_(std::move(goTo)) {
  setUpTable(*this, {"Name", "Type", "Path", "Found"}, "Hits");
  connect(this, &QTableWidget::itemActivated, this, [this](QTableWidgetItem const* cell) {
    failures_.guard([&] { goTo_(root_->getSchemeName(), paths_[std::size_t(cell->row())]); });
  });
}

void SearchView::start(RCShdPtr<BrBrowsable> const& root, std::string const& text) {
  cancel();
  setRowCount(0);
  paths_.clear();
  seen_ = 0;
  root_ = root;
  search_.emplace(*root, text);
  timer_ = startTimer(0);
}

void SearchView::cancel() {
  if (timer_) {
    killTimer(timer_);
    report_(fmt::format("search stopped after {} items", seen_));
  }
  timer_ = 0;
  search_.reset();
}

void SearchView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_)
    return QTableWidget::timerEvent(event);
  QElapsedTimer clock;
  clock.start();
  bool const more = failures_.guard([&] {
    while (clock.elapsed() < 6) {
      if (!search_->step())
        return false;
      ++seen_;
    }
    report_(fmt::format("searching, {} items", seen_));
    return true;
  });
  if (more)
    return;
  killTimer(timer_);
  timer_ = 0;
  failures_.guard([&] { list(); });
  search_.reset();
}

void SearchView::list() {
  constexpr std::size_t Most = 1'000;
  std::vector<Search::Found> const found = search_->getResult();
  for (std::size_t hit = 0; hit < std::min(found.size(), Most); ++hit) {
    BrBrowsable& item = *found[hit].item;
    paths_.push_back(item.getPath());
    addRow(*this, {getAttribute(item, BrBrowsable::NAME),
                   getAttribute(item, BrBrowsable::BROWSABLE_TYPE), item.getPath(),
                   found[hit].title + (found[hit].title.empty() ? "" : ": ") + found[hit].text});
  }
  report_(found.size() > Most
              ? fmt::format("{} hits, the first {} are listed", found.size(), Most)
              : fmt::format("{} hit{}", found.size(), found.size() == 1 ? "" : "s"));
  resizeColumnToContents(0);
  if (rowCount() > 0)
    setCurrentCell(0, 0);
}

} // namespace Qv
