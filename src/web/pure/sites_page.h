#pragma once

#include "web/pure/favorite_record.h"

/// The program's own page of links to web sites, as it is written to its file; a site without an
/// address is left out.
QByteArray SitesPage(const QList<Favorite> &sites);
