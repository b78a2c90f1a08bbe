#pragma once

// Sequences cross an interface as Iterator<T>, a value that shares its engine until it moves.
// The usual loop costs no clone, since the one iterator of the loop holds its engine alone:
//
//   for (Iterator<T> it = sequence(); !it.atEnd(); it.next())
//     use(it.item());

#include "rcShdPtr.h"

#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>

namespace Qv {

/// Counting pointer to an iterator engine.
template <class E> class QV_EXPORT RCPvtEngPtr : public RCShdPtr<E> {
public:
  /// Takes a reference on `engine`, which may be null.
  explicit RCPvtEngPtr(E* engine = nullptr) noexcept : RCShdPtr<E>(engine) {}
  RCPvtEngPtr(RCPvtEngPtr const& other) noexcept = default;
  RCPvtEngPtr& operator=(RCPvtEngPtr const& other) noexcept = default;
  RCPvtEngPtr& operator=(RCPvtEngPtr&& other) noexcept = default;
  ~RCPvtEngPtr();
};

// An instance exports a defaulted destructor only when it is defaulted outside the class.
template <class E> inline RCPvtEngPtr<E>::~RCPvtEngPtr() = default;

/// An iterator engine: a position in a sequence of `T`.
template <class T> class QV_EXPORT IteratorImp : public RCBase<LkCounter<int>> {
protected:
  ~IteratorImp() override;

public:
  /// Whether both stand on the same element or both at the end.
  /// @throws std::bad_cast when `other` is an engine of another kind.
  virtual bool isEqual(IteratorImp const& other) const = 0;
  /// The element at the position, which must not be the end.
  virtual T const& item() const = 0;
  /// The element at the position, to be changed; the position must not be the end.
  virtual T& item() = 0;
  /// Goes to the first element, or to the end when there is none.
  virtual void first() = 0;
  /// Goes to the last element, or to the end when there is none.
  virtual void last() = 0;
  /// Goes behind the last element.
  virtual void end() = 0;
  /// Whether the position is behind the last element.
  virtual bool atEnd() const = 0;
  /// Whether the position is the first element, or the end when there is none.
  virtual bool atBegin() const = 0;
  /// @throws IteratorEx::ExOutOfRange at the end, and stays there.
  virtual void next() = 0;
  /// @throws IteratorEx::ExOutOfRange at the first element, and stays there.
  virtual void previous() = 0;
  /// The number of elements, whatever the position.
  virtual int getCardinality() const = 0;
  /// A new engine at the same position, with count 0.
  virtual IteratorImp* clone() const = 0;
};

template <class T> inline IteratorImp<T>::~IteratorImp() = default;

// The standard iterator base is deprecated, yet part of the layout and of the type's identity.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

/// A bidirectional iterator over any engine, whose operations it calls. Copies share the engine;
/// whatever moves or hands out a modifiable element first makes it exclusive. Every operation but
/// copying and destruction throws ExNullPtr when there is no engine.
template <class T>
class QV_EXPORT Iterator
    : public std::iterator<std::bidirectional_iterator_tag, T, std::int64_t, T*, T&> {
#pragma GCC diagnostic pop
public:
  explicit Iterator(RCPvtEngPtr<IteratorImp<T>> const& engine) : engine_(engine) {}
  Iterator(Iterator const& other);
  Iterator& operator=(Iterator const& other) = default;
  virtual ~Iterator();

  /// @{
  /// The element at the position, which must not be the end.
  virtual T const* operator->() const { return std::addressof(engine().item()); }
  virtual T* operator->() { return std::addressof(exclusive().item()); }
  virtual T const& item() const { return engine().item(); }
  virtual T& item() { return exclusive().item(); }
  virtual T const& operator*() const { return engine().item(); }
  virtual T& operator*() { return exclusive().item(); }
  /// @}

  virtual Iterator& first() {
    exclusive().first();
    return *this;
  }
  virtual Iterator& last() {
    exclusive().last();
    return *this;
  }
  virtual Iterator& end() {
    exclusive().end();
    return *this;
  }
  virtual bool atEnd() const { return engine().atEnd(); }
  virtual bool atBegin() const { return engine().atBegin(); }
  virtual Iterator& next() {
    exclusive().next();
    return *this;
  }
  virtual Iterator& previous() {
    exclusive().previous();
    return *this;
  }
  virtual int getCardinality() const { return engine().getCardinality(); }

  /// An iterator that stays at the old position.
  virtual Iterator operator++(int) {
    Iterator old(*this);
    next();
    return old;
  }
  virtual Iterator& operator++() { return next(); }
  /// An iterator that stays at the old position.
  virtual Iterator operator--(int) {
    Iterator old(*this);
    previous();
    return old;
  }
  virtual Iterator& operator--() { return previous(); }

private:
  IteratorImp<T> const& engine() const { return *engine_; }

  /// The engine, held by this iterator alone.
  IteratorImp<T>& exclusive() {
    IteratorImp<T>& engine = *engine_;
    if (engine.getRefCount() != 1) [[unlikely]]
      return unshare();
    return engine;
  }

  /// Replaces the engine by a clone of it. Kept out of the moves that every step of a walk inlines.
  [[gnu::noinline]] IteratorImp<T>& unshare() {
    RCPvtEngPtr<IteratorImp<T>> clone(engine_->clone());
    if (!clone)
      RCExUtil::throwExNullPtrOf<IteratorImp<T>*>();
    engine_ = std::move(clone);
    return *engine_;
  }

  RCPvtEngPtr<IteratorImp<T>> engine_;
};

template <class T> inline Iterator<T>::Iterator(Iterator const& other) = default;

template <class T> inline Iterator<T>::~Iterator() = default;

} // namespace Qv
