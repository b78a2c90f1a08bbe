#pragma once

#include "failures.h"
#include "search.h"

#include <QTableWidget>

namespace Qv {

/// Searches in slices between two events, and lists the hits.
class SearchView : public QTableWidget {
public:
  using Report = std::function<void(std::string const&)>;
  using GoTo = std::function<void(std::string const& scheme, std::string const& path)>;

  /// @param report is told how far the search is. @param goTo is called with the hit that is
  /// chosen.
  SearchView(Failures& failures, Report report, GoTo goTo);

  void start(RCShdPtr<BrBrowsable> const& root, std::string const& text);
  /// Ends the search; the hits stay.
  void cancel();

protected:
  void timerEvent(QTimerEvent* event) override;

private:
  void list();

  Failures& failures_;
  Report report_;
  GoTo goTo_;
  RCShdPtr<BrBrowsable> root_;
  std::optional<Search> search_;
  std::vector<std::string> paths_;
  std::size_t seen_ = 0;
  int timer_ = 0;
};

} // namespace Qv
