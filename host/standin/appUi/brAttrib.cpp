#include "brAttrib.h"

#include <algorithm>
#include <utility>

namespace Qv {

int const BrAttrib::DEFAULT_MIN_WIDTH = 40;
int const BrAttrib::DEFAULT_MAX_WIDTH = 2000;

BrAttrib::BrAttrib(LiString const& name, unsigned int attributeId, unsigned int dataType,
                   int minWidth, int maxWidth, std::array<AttribAttributes, 5> const& attributes)
    : name_(name), attributeId_(attributeId), dataType_(dataType), minWidth_(minWidth),
      maxWidth_(maxWidth), currentWidth_(minWidth), attributes_(attributes) {}

BrAttrib::~BrAttrib() = default;

RCShdPtr<BrAttrib> BrAttrib::create(LiString const& name, unsigned int attributeId,
                                    unsigned int dataType, int minWidth, int maxWidth,
                                    AttribAttributes first, AttribAttributes second,
                                    AttribAttributes third, AttribAttributes fourth,
                                    AttribAttributes fifth) {
  return RCShdPtr<BrAttrib>(new BrAttrib(name, attributeId, dataType, minWidth, maxWidth,
                                         {first, second, third, fourth, fifth}));
}

int BrAttrib::setCurrentW(int width) {
  return std::exchange(currentWidth_, std::max(minWidth_, std::min(width, maxWidth_)));
}

void BrAttrib::setDisplayed(bool displayed) { displayed_ = displayed; }

} // namespace Qv
