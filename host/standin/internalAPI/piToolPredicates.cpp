#include "piToolPredicates.h"

#include "hostTool.h"

namespace Qv {

/// A node of a predicate's expression, shared by all predicates that contain it.
template <class T> class PrdTerm : public RCBase<LkCounter<int>> {
public:
  virtual bool holds(T const& element) const = 0;
  /// See PrdPredicate::getIndexKey().
  virtual std::string const* getIndexKey() const { return nullptr; }

protected:
  ~PrdTerm() override = default;
};

template <class T> class PrdNot final : public PrdTerm<T> {
public:
  explicit PrdNot(RCShdPtr<PrdTerm<T> const> const& term) : term_(term) {}

  bool holds(T const& element) const override { return !term_->holds(element); }

private:
  RCShdPtr<PrdTerm<T> const> term_;
};

template <class T> class PrdAnd final : public PrdTerm<T> {
public:
  PrdAnd(RCShdPtr<PrdTerm<T> const> const& left, RCShdPtr<PrdTerm<T> const> const& right)
      : left_(left), right_(right) {}

  bool holds(T const& element) const override {
    return left_->holds(element) && right_->holds(element);
  }
  std::string const* getIndexKey() const override {
    std::string const* const key = left_->getIndexKey();
    return key ? key : right_->getIndexKey();
  }

private:
  RCShdPtr<PrdTerm<T> const> left_;
  RCShdPtr<PrdTerm<T> const> right_;
};

namespace {

/// Every predicate holds a PrdTerm.
template <class T>
RCShdPtr<PrdTerm<T> const> termOf(RCShdPtr<RCBase<LkCounter<int>> const> const& term) {
  return RCShdPtr<PrdTerm<T> const>(static_cast<PrdTerm<T> const*>(term.get()));
}

} // namespace

template <class T>
PrdPredicate<T>::PrdPredicate(RCShdPtr<RCBase<LkCounter<int>> const> const& term) : term_(term) {}

template <class T> PrdPredicate<T>::~PrdPredicate() = default;

template <class T> PrdPredicate<T> PrdPredicate<T>::operator!() const {
  return PrdPredicate(RCShdPtr<PrdTerm<T> const>(new PrdNot<T>(termOf<T>(term_))));
}

template <class T> PrdPredicate<T> PrdPredicate<T>::operator&&(PrdPredicate const& other) const {
  return PrdPredicate(
      RCShdPtr<PrdTerm<T> const>(new PrdAnd<T>(termOf<T>(term_), termOf<T>(other.term_))));
}

template <class T> bool PrdPredicate<T>::holds(T const& element) const {
  return static_cast<PrdTerm<T> const&>(*term_).holds(element);
}

template <class T> std::string const* PrdPredicate<T>::getIndexKey() const {
  return static_cast<PrdTerm<T> const&>(*term_).getIndexKey();
}

using ToolPtr = RCShdPtr<PiTool const>;

template class PrdPredicate<ToolPtr>;

namespace {

/// Every tool of the registry is a HostTool.
HostTool const& hostTool(ToolPtr const& tool) { return static_cast<HostTool const&>(*tool); }

class IsCategory final : public PrdTerm<ToolPtr> {
public:
  explicit IsCategory(LiString const& category) : category_(category) {}

  bool holds(ToolPtr const& tool) const override {
    return hostTool(tool).getInfo().category == category_;
  }
  std::string const* getIndexKey() const override { return &category_; }

private:
  LiString category_;
};

class IsInternal final : public PrdTerm<ToolPtr> {
public:
  bool holds(ToolPtr const& tool) const override { return hostTool(tool).getInfo().internal; }
};

class IsActive final : public PrdTerm<ToolPtr> {
public:
  bool holds(ToolPtr const& tool) const override { return tool->isActive(); }
};

PrdPredicate<ToolPtr> makePredicate(PrdTerm<ToolPtr> const* term) {
  return PrdPredicate<ToolPtr>(RCShdPtr<PrdTerm<ToolPtr> const>(term));
}

} // namespace

PrdPredicate<ToolPtr> PiToolPredicates::isCategory(LiString const& category) {
  return makePredicate(new IsCategory(category));
}

PrdPredicate<ToolPtr> PiToolPredicates::isInternal() { return makePredicate(new IsInternal); }

PrdPredicate<ToolPtr> PiToolPredicates::isActive() { return makePredicate(new IsActive); }

} // namespace Qv
