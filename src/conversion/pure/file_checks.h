#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <functional>

/// What is looked at before a conversion begins, in this order.
enum class FileCheck {
    SourceEmpty,
    TargetEmpty,
    NoPeriod,
    NoBackslash,
    NoDrive,
    NoStem,
    NoExtension,
    WrongExtension,
    TargetExists,
    PdicBinary,
    GlossaryExtension,
};
inline constexpr std::array kFileChecks{
    FileCheck::SourceEmpty,  FileCheck::TargetEmpty, FileCheck::NoPeriod,          FileCheck::NoBackslash,
    FileCheck::NoDrive,      FileCheck::NoStem,      FileCheck::NoExtension,       FileCheck::WrongExtension,
    FileCheck::TargetExists, FileCheck::PdicBinary,  FileCheck::GlossaryExtension,
};

/// The files of a conversion as the dialog holds them: drive paths, the source trimmed.
struct ConvFiles {
    std::int16_t formatIndex = 0;
    QString source;
    QString target;
};

/// Whether a check has something to say. `exists` tells whether a file stands at a drive path; it is
/// asked for the target alone.
bool Finds(FileCheck check, const ConvFiles &files, const std::function<bool(const QString &)> &exists);

/// Whether the checks go on after the user agreed to what a check asks (はい, OK) or not; may rewrite
/// the target.
bool GoesOn(FileCheck check, bool agreed, ConvFiles &files);

/// The extension of a path in capitals.
QString UpperExtOfPath(const QString &path);
