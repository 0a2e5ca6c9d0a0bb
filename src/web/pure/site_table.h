#pragma once

#include "web/pure/favorite_record.h"

/// The web dictionaries that the program knows. The last row, its own page, has no address.
const QList<Favorite> &SiteTable();

/// Writes the site table to `favorite.dat` in the application folder; raises what stands in the way.
void WriteDefaultFavorites();
