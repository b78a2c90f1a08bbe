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

  /// Equal items are of the same class and carry equal values; the parts do not count.
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

  /// Gives consumers of the selection what it carries.
  T const& getValue() const { return value_; }

protected:
  SnItemBasic(SnItemBasic const& other) = default;

private:
  T value_;
};

// An instance exports a defaulted destructor only when it is defaulted outside the class.
template <class T> inline SnItemBasic<T>::~SnItemBasic() = default;

} // namespace Qv
