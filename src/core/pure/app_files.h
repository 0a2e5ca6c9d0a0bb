#pragma once

#include <QString>

/// The drive path of a file in the application folder.
QString AppFilePath(const QString &name);

/// The name of the catalogue file in the application folder.
QString CatalogueFileName();

/// The drive path of `ListData.dat`, the store of the hits of the last list search.
QString ResultStorePath();

/// The drive path of `Help.HLP`.
QString HelpFilePath();

/// The folder that holds `msagent\Chars`, the default place of the characters: the application
/// folder, as a drive path.
QString WindowsFolderRoot();

/// Length of a text in bytes as a fixed record holds it: a single-byte character counts 1, a
/// double-byte one 2, one that code page 932 lacks as many as its reference; 0 for a null text.
qsizetype AnsiByteLen(const QString &text);
