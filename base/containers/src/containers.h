#pragma once

#include "qvExport.h"

#include <list>
#include <set>
#include <vector>

namespace Qv {

/// The doubly linked list; behaves as the standard one.
template <class T> class QV_EXPORT List : public std::list<T> {
public:
  using std::list<T>::list;
};

/// The contiguous array; behaves as the standard vector.
template <class T> class QV_EXPORT Vector : public std::vector<T> {
public:
  using std::vector<T>::vector;
};

/// The ordered set; behaves as the standard one.
template <class T> class QV_EXPORT Set : public std::set<T> {
public:
  using std::set<T>::set;
};

} // namespace Qv
