#pragma once

// Sequences cross an interface as Iterator<T>, a value whose engine is copied on write. The usual
// loop never clones, because nobody else shares its engine:
//
//   for (Iterator<T> it = sequence(); !it.atEnd(); it.next())
//     use(it.item());

#include "rcShdPtr.h"

#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>

namespace Qv {

/// Shared pointer to an iterator engine.
template <class E> class QV_EXPORT RCPvtEngPtr : public RCShdPtr<E> {
public:
  /// Takes a reference to `engine`, which may be null.
  explicit RCPvtEngPtr(E* engine = nullptr) noexcept : RCShdPtr<E>(engine) {}
  RCPvtEngPtr(RCPvtEngPtr const& other) noexcept = default;
  RCPvtEngPtr& operator=(RCPvtEngPtr const& other) noexcept = default;
  RCPvtEngPtr& operator=(RCPvtEngPtr&& other) noexcept = default;
  ~RCPvtEngPtr();
};

// A template instance exports a defaulted destructor only if it is defaulted out of class.
template <class E> inline RCPvtEngPtr<E>::~RCPvtEngPtr() = default;

/// Iterator engine: a position in a sequence of `T`.
template <class T> class QV_EXPORT IteratorImp : public RCBase<LkCounter<int>> {
protected:
  ~IteratorImp() override;

public:
  /// Whether both are at the same element, or both at the end.
  /// @throws std::bad_cast if `other` is of another class.
  virtual bool isEqual(IteratorImp const& other) const = 0;
  /// @{
  /// The current element; undefined at the end.
  virtual T const& item() const = 0;
  virtual T& item() = 0;
  /// @}
  /// Moves to the first element, or to the end of an empty sequence.
  virtual void first() = 0;
  /// Moves to the last element, or to the end of an empty sequence.
  virtual void last() = 0;
  /// Moves past the last element.
  virtual void end() = 0;
  virtual bool atEnd() const = 0;
  /// Whether the position is the first element, or the end of an empty sequence.
  virtual bool atBegin() const = 0;
  /// @throws IteratorEx::ExOutOfRange at the end; the position does not change.
  virtual void next() = 0;
  /// @throws IteratorEx::ExOutOfRange at the first element; the position does not change.
  virtual void previous() = 0;
  /// The number of elements, regardless of position.
  virtual int getCardinality() const = 0;
  /// A new engine at the same position, with reference count 0.
  virtual IteratorImp* clone() const = 0;
};

template <class T> inline IteratorImp<T>::~IteratorImp() = default;

// std::iterator is deprecated, but part of the class layout and of the type info.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

/// Bidirectional iterator that delegates to an engine. Copies share the engine; moving, and access
/// to a modifiable element, clone a shared engine first. Every operation except copying and
/// destruction throws ExNullPtr if the engine is null.
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
  /// The current element; undefined at the end.
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

  /// Returns an iterator at the old position.
  virtual Iterator operator++(int) {
    Iterator old(*this);
    next();
    return old;
  }
  virtual Iterator& operator++() { return next(); }
  /// Returns an iterator at the old position.
  virtual Iterator operator--(int) {
    Iterator old(*this);
    previous();
    return old;
  }
  virtual Iterator& operator--() { return previous(); }

private:
  IteratorImp<T> const& engine() const { return *engine_; }

  /// The engine, cloned first if it is shared.
  IteratorImp<T>& exclusive() {
    IteratorImp<T>& engine = *engine_;
    if (engine.getRefCount() != 1) [[unlikely]]
      return unshare();
    return engine;
  }

  /// Replaces the engine with a clone. Not inlined, to keep the steps of a loop small.
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
