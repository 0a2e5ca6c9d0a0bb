#pragma once

#include <QString>

/// The drive path of the generated page.
QString PagePath();

/// Begins a page of entries: the file is emptied and gets the header's lines.
void WritePageHeader();
