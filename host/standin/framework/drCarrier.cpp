#include "drCarrier.h"

namespace Qv {

DrCarrier::DrCarrier(RCShdPtr<SnSelection> const& selection) : selection_(selection) {}

DrCarrier::~DrCarrier() = default;

RCShdPtr<SnSelection> DrCarrier::getSelection() { return selection_; }

} // namespace Qv
