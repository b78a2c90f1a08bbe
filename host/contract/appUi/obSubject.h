#pragma once

#include "qvExport.h"

namespace Qv {

/// Something that observers watch.
class QV_EXPORT ObSubjectAny {
public:
  virtual ~ObSubjectAny();
};

/// A subject of the class `Subject`.
template <class Subject> class QV_EXPORT ObSubject : public ObSubjectAny {};

} // namespace Qv
