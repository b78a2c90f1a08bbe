#pragma once

#include "containers.h"
#include "iterator.h"
#include "iteratorEx.h"
#include "rcStrongPtr.h"

#include <cassert>

namespace Qv {

/// Yields elements as they are stored.
struct QV_EXPORT IteratorAccessorPassthrough {
  template <class T> static T& access(T& element) { return element; }
};

/// Engine over a List or Vector that it shares with its clones. The container must not grow or
/// shrink once the engine exists.
/// @tparam StrongPtr a shared pointer to the container, for instance `RCStrongPtr<Container>`.
/// @tparam Accessor maps a stored element to the one that is yielded.
template <class Container, class StrongPtr, class Accessor>
class QV_EXPORT IteratorSTL final : public IteratorImp<typename Container::value_type> {
public:
  using Element = typename Container::value_type;

  /// Starts at the first element. @throws ExNullPtr if `container` is null.
  explicit IteratorSTL(StrongPtr const& container)
      : container_(container), position_(container_->begin()) {}

protected:
  ~IteratorSTL() override;

public:
  /// All ends are equal. @throws std::bad_cast if `other` is of another class.
  bool isEqual(IteratorImp<Element> const& other) const override {
    auto const& engine = dynamic_cast<IteratorSTL const&>(other);
    if (atEnd() || engine.atEnd())
      return atEnd() && engine.atEnd();
    return std::addressof(item()) == std::addressof(engine.item());
  }

  Element const& item() const override {
    assert(!atEnd());
    return Accessor::access(*position_);
  }
  Element& item() override {
    assert(!atEnd());
    return Accessor::access(*position_);
  }

  void first() override { position_ = container().begin(); }
  void last() override {
    position_ = container().end();
    if (!container().empty())
      --position_;
  }
  void end() override { position_ = container().end(); }
  bool atEnd() const override { return position_ == container().end(); }
  bool atBegin() const override { return position_ == container().begin(); }

  void next() override {
    if (atEnd())
      throwOutOfRange(148);
    ++position_;
  }
  void previous() override {
    if (atBegin())
      throwOutOfRange(159);
    --position_;
  }

  int getCardinality() const override { return static_cast<int>(container().size()); }
  IteratorSTL* clone() const override { return new IteratorSTL(*this); }

private:
  IteratorSTL(IteratorSTL const&) = default;

  /// Unchecked: the constructor rejects null.
  Container& container() const { return *container_.get(); }

  /// Path and line numbers are part of the interface: handlers may check them.
  [[noreturn]] static void throwOutOfRange(int line) {
    throw IteratorEx::ExOutOfRange(".\\base/containers/src/iteratorSTL.imp.h", line);
  }

  StrongPtr container_;
  typename Container::iterator position_;
};

template <class Container, class StrongPtr, class Accessor>
inline IteratorSTL<Container, StrongPtr, Accessor>::~IteratorSTL() = default;

/// An iterator at the first element of `container`, which it shares.
/// @throws ExNullPtr if `container` is null.
template <class Container>
Iterator<typename Container::value_type> makeIterator(RCStrongPtr<Container> const& container) {
  using Element = typename Container::value_type;
  using Engine = IteratorSTL<Container, RCStrongPtr<Container>, IteratorAccessorPassthrough>;
  return Iterator<Element>(RCPvtEngPtr<IteratorImp<Element>>(new Engine(container)));
}

} // namespace Qv
