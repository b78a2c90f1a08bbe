#pragma once

#include "dragging.h"
#include "failures.h"
#include "hostWorkspace.h"

#include <QMimeData>
#include <QTabWidget>

class QTableWidget;

namespace Qv {

/// Takes the carrier of a drag along. The carrier holds objects of the module, so it is taken away
/// when the drag is over: the mime data may live on.
class CarrierData : public QMimeData {
public:
  explicit CarrierData(RCShdPtr<DrCarrier> carrier) : carrier_(std::move(carrier)) {}

  RCShdPtr<DrCarrier> const& getCarrier() const { return carrier_; }
  void release() { carrier_ = RCShdPtr<DrCarrier>(); }
  bool hasFormat(QString const& type) const override { return formats().contains(type); }
  QStringList formats() const override { return {"application/x-qv-selection"}; }

private:
  RCShdPtr<DrCarrier> carrier_;
};

/// A table of texts, to be read.
void setUpTable(QTableWidget& table, QStringList const& titles, QString const& name);
void addRow(QTableWidget& table, std::vector<std::string> const& cells);

/// Where views are opened, as tabs and as windows, and items are dropped.
class Workspace : public QTabWidget {
public:
  /// Makes the content of a view; null for a view that it does not know.
  using MakeView = std::function<QWidget*(std::string const& name)>;

  Workspace(Failures& failures, MakeView makeView);

  void open(HostWorkspace::Request const& request);

protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

private:
  Failures& failures_;
  MakeView makeView_;
  QTableWidget* arrivals_;
};

} // namespace Qv
