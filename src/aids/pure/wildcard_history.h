#pragma once

#include "aids/pure/wildcard_pattern.h"

#include <QByteArray>
#include <QStringList>

/// The content of `Wildhist.dat`: start, middle, end and the two gaps, each trimmed and on a line.
QByteArray EncodeWildcardHistory(const WildcardFields &fields);

/// The fields of such a file's lines; the ones that a shorter file lacks stay empty.
WildcardFields DecodeWildcardHistory(const QStringList &lines);
