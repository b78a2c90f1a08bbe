#pragma once

#include "detailPage.h"
#include "output.h"

namespace Qv {

/// Null when the image is not one of the host's.
Json toJson(RCShdPtr<WsManagedImage> const& image);
Json toJson(Widget const& widget);
Json toJson(DetailPage::Content const& content);

std::string toText(RCShdPtr<WsManagedImage> const& image);
void print(DetailPage::Content const& content, Output& output);

} // namespace Qv
