#pragma once

#include "detailPage.h"
#include "output.h"
#include "session.h"

namespace Qv {

// The JSON of what several commands show.

/// Whether an item's name is that in its path.
bool showsPath(BrBrowsable& item);

/// What every item starts with.
Json toJson(BrBrowsable& item);
/// Null when the image is not one of the host's.
Json toJson(RCShdPtr<WsManagedImage> const& image);
/// With all widgets in it.
Json toJson(Widget const& widget);
Json toJson(ToolSource::Plugin const& plugin);

/// Adds the plug-in that an item stands for and what a page shows of it.
void addDetail(Json& json, RCShdPtr<BrBrowsable> const& item, Session const& session,
               std::optional<DetailPage>& page);
/// Prints what addDetail() added, each with an empty line in front.
void printDetail(Json const& item, Output& output);

} // namespace Qv
