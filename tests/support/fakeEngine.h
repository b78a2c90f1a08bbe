#pragma once

#include "iterator.h"

#include <vector>

namespace Qv {

/// A sequence whose engines a test controls.
template <class T> struct FakeSequence {
  std::vector<T> values;
  /// What the engines return, true or not.
  int cardinality = -1;
  bool clonesToNull = false;
  /// The number of clones made.
  int clones = 0;
};

/// An engine over a sequence, which must outlive it.
template <class T> class FakeEngine final : public IteratorImp<T> {
public:
  explicit FakeEngine(FakeSequence<T>& sequence) : sequence_(sequence) {}

  bool isEqual(IteratorImp<T> const& other) const override { return &other == this; }
  T const& item() const override { return sequence_.values.at(position_); }
  T& item() override { return sequence_.values.at(position_); }
  void first() override { position_ = 0; }
  void last() override { position_ = sequence_.values.size() - 1; }
  void end() override { position_ = sequence_.values.size(); }
  bool atEnd() const override { return position_ == sequence_.values.size(); }
  bool atBegin() const override { return position_ == 0; }
  void next() override { ++position_; }
  void previous() override { --position_; }
  int getCardinality() const override { return sequence_.cardinality; }
  FakeEngine* clone() const override {
    if (sequence_.clonesToNull)
      return nullptr;
    ++sequence_.clones;
    return new FakeEngine(*this);
  }

private:
  FakeEngine(FakeEngine const&) = default;

  FakeSequence<T>& sequence_;
  std::size_t position_ = 0;
};

/// An iterator at the first element of a sequence.
template <class T> Iterator<T> iteratorOver(FakeSequence<T>& sequence) {
  return Iterator<T>(RCPvtEngPtr<IteratorImp<T>>(new FakeEngine<T>(sequence)));
}

} // namespace Qv
