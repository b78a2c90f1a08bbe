#include "pbrAttribList.h"

#include "brBrowsable.h"

namespace Qv {

void appendColumns(RCShdPtr<BrAttribList> const& list, LiString const& nameTitle) {
  using Flag = BrAttrib::AttribAttributes;

  RCShdPtr<BrAttrib> attrib =
      BrAttrib::create("Type", BrBrowsable::BROWSABLE_TYPE, BrBrowsable::ICON, 32, 32, Flag(1),
                       Flag(3), Flag(5), Flag(6), Flag(9));
  attrib->setDisplayed(true);
  attrib->auxFlag = false;
  attrib->auxText = "";
  list->append(attrib);

  attrib = BrAttrib::create(nameTitle, BrBrowsable::NAME, BrBrowsable::STRING,
                            BrAttrib::DEFAULT_MIN_WIDTH, BrAttrib::DEFAULT_MAX_WIDTH, Flag(0),
                            Flag(2), Flag(5), Flag(7), Flag(8));
  attrib->setCurrentW(365);
  attrib->setDisplayed(true);
  list->append(attrib);

  list->singleSort(static_cast<int>(BrBrowsable::NAME));
}

} // namespace Qv
