#pragma once

#include <QString>
#include <array>
#include <functional>

/// What is looked at in the path of a dictionary file that is to be made, in this order.
enum class PathCheck { Empty, NoPeriod, NoBackslash, NoDrive, NoStem, NoExtension, WrongExtension, Exists };
inline constexpr std::array kPathChecks{
    PathCheck::Empty,  PathCheck::NoPeriod,    PathCheck::NoBackslash,    PathCheck::NoDrive,
    PathCheck::NoStem, PathCheck::NoExtension, PathCheck::WrongExtension, PathCheck::Exists,
};

/// Whether a check has something to say on a drive path. `exists` tells whether a file stands there.
bool Finds(PathCheck check, const QString &path, const std::function<bool(const QString &)> &exists);

/// Whether the checks go on after the user agreed (はい, OK) to what a check asks, or not; may rewrite
/// the path. What is only told ends them.
bool GoesOn(PathCheck check, bool agreed, QString &path);

/// The extension of a path in capitals.
QString UpperExtOfPath(const QString &path);
