#include "brBrowser.h"

namespace Qv {

BrBrowser::BrBrowser() = default;

BrBrowser::~BrBrowser() = default;

} // namespace Qv
