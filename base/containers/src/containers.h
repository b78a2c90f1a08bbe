#pragma once

#include "qvExport.h"

#include <list>
#include <set>
#include <vector>

namespace Qv {

/// Doubly linked list; behaves like std::list.
template <class T> class QV_EXPORT List : public std::list<T> {
public:
  using std::list<T>::list;
};

/// Contiguous array; behaves like std::vector.
template <class T> class QV_EXPORT Vector : public std::vector<T> {
public:
  using std::vector<T>::vector;
};

/// Ordered set; behaves like std::set.
template <class T> class QV_EXPORT Set : public std::set<T> {
public:
  using std::set<T>::set;
};

} // namespace Qv
