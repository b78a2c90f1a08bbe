#include "obSubject.h"

namespace Qv {

ObSubjectAny::~ObSubjectAny() = default;

} // namespace Qv
