#pragma once

#include <QString>

namespace files
{

/// The folder of settings and working files, as a drive path without a backslash at its end.
/// Decided by SetApplicationFolder; until then empty.
QString ApplicationFolder();
void SetApplicationFolder(const QString &hostPath);

/// Where the application folder is for a program started from `executableFolder`: that folder when
/// a file `portable` stands in it, else the user's data folder. A host path.
QString ChooseApplicationFolder(const QString &executableFolder);

/// What the first fill and later refreshes bring.
struct Shipped {
    QString shareFolder; ///< host path of the installed files
    bool withSample = true;
};

/// Makes the folder ready: a folder that does not exist is filled aside and renamed into place; in
/// one that exists `Help.HLP` and the shipped characters are refreshed where the installed ones are
/// newer, and nothing that the user deleted comes back. Host path. Raises 70, 61, 76.
void FillApplicationFolder(const QString &hostFolder, const Shipped &shipped);

/// The system's temporary folder, inside it one private to the user, as a drive path that ends with
/// a backslash; created when it is not there.
QString TempFolder();

} // namespace files
