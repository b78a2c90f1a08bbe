#pragma once

#include "snItem.h"

#include <ostream>
#include <typeinfo>

namespace Qv {

/// A selection item that carries one value.
template <class T> class QV_EXPORT SnItemBasic : public SnItem {
public:
  SnItemBasic(T const& value, RCShdPtr<SnParts> const& parts) : SnItem(parts), value_(value) {}

protected:
  ~SnItemBasic() override;

public:
  SnItem* clone() const override { return new SnItemBasic(*this); }

  /// Compares classes and values, not parts.
  bool isEqual(SnItem const& other) const override {
    return typeid(other) == typeid(*this) &&
           static_cast<SnItemBasic const&>(other).value_ == value_;
  }

  void dump(std::ostream& os) const override {
    SnItem::dump(os);
    os << "Data:      ";
    if constexpr (requires { value_.dump(os); })
      value_.dump(os);
    else
      os << value_;
    os << "\n";
  }

  T const& getValue() const { return value_; }

protected:
  SnItemBasic(SnItemBasic const& other) = default;

private:
  T value_;
};

// A template instance exports a defaulted destructor only if it is defaulted out of class.
template <class T> inline SnItemBasic<T>::~SnItemBasic() = default;

} // namespace Qv
