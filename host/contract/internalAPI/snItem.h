#pragma once

#include "rcShdPtr.h"

namespace Qv {

/// The optional parts of a selection item.
class QV_EXPORT SnParts : public RCBase<LkCounter<int>> {
protected:
  ~SnParts() override;
};

/// A selection item. Its count is not atomic, so it stays on the thread that made it.
class QV_EXPORT SnItem : public RCBase<int> {
public:
  class Snapshot;

protected:
  ~SnItem() override;

public:
  /// A new item equal to this one, owned by the caller.
  virtual SnItem* clone() const = 0;
  /// Whether both represent the same object.
  virtual bool isEqual(SnItem const& other) const = 0;
  /// Writes a description; the base class writes its own part.
  virtual void dump(std::ostream& os) const;
  virtual RCShdPtr<Snapshot> snapshot() const;

protected:
  virtual RCShdPtr<SnItem> restore() const;

  explicit SnItem(RCShdPtr<SnParts> const& parts);
  SnItem(SnItem const& other);

private:
  RCShdPtr<SnParts> parts_;
};

/// The saved state of an item.
class QV_EXPORT SnItem::Snapshot : public RCBase<LkCounter<int>> {
protected:
  ~Snapshot() override;
};

} // namespace Qv
