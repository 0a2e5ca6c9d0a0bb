#pragma once

#include "core/pure/settings_formats.h"

/// The settings of `ListDefi.dat`, which is made with the defaults where it is missing. A line of
/// another length than twenty characters counts as the default one; raises 13 and 6 for one that
/// holds no numbers or too great ones.
ListSettings ReadListSettings();

/// Puts a file with the settings in the place of `ListDefi.dat`.
void WriteListSettings(const ListSettings &settings);

/// Takes the six sizes into use; the search target is that of the next start.
void UseListSizes(const ListSettings &settings);

/// The six sizes in use.
ListSettings ListSizesInUse();
