#pragma once

#include "qvExport.h"

namespace Qv {

/// Base class of observable objects.
class QV_EXPORT ObSubjectAny {
public:
  virtual ~ObSubjectAny();
};

/// An observable object of the class `Subject`.
template <class Subject> class QV_EXPORT ObSubject : public ObSubjectAny {};

} // namespace Qv
