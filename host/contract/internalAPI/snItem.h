#pragma once

#include "rcShdPtr.h"

namespace Qv {

/// The optional parts of a selection item.
class QV_EXPORT SnParts : public RCBase<LkCounter<int>> {
protected:
  ~SnParts() override;
};

/// An item of a selection. Counted without atomics, so it stays on the thread that made it.
class QV_EXPORT SnItem : public RCBase<int> {
public:
  class Snapshot;

protected:
  ~SnItem() override;

public:
  /// A new item equal to this one, owned by the caller.
  virtual SnItem* clone() const = 0;
  /// Whether both stand for the same thing.
  virtual bool isEqual(SnItem const& other) const = 0;
  /// Writes a description, of which the base class writes its own part.
  virtual void dump(std::ostream& os) const;
  /// Saves the state of the item.
  virtual RCShdPtr<Snapshot> snapshot() const;

protected:
  /// An item from the saved state.
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
