#pragma once

#include "search/pure/composite_text.h"

/// Takes a search text apart; markers in the wrong order are told, and leave all parts empty.
CompositeText SplitCompositeText(const QString &typed);
