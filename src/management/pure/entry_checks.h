#pragma once

#include "management/pure/catalogue_entries.h"

#include <QString>
#include <functional>
#include <optional>

/// What is wrong with an entry as the user filled it in: the text and the title of the box.
struct EntryFault {
    QString text;
    QString title;
    bool isDuplicate = false; ///< the name is to be typed anew

    bool operator==(const EntryFault &) const = default;
};

/// An entry as the user filled it in, trimmed.
struct EntryDraft {
    bool isEdit = false;
    QString savedName; ///< the name that an edited entry had
    QString name;
    QString path; ///< drive path
};

/// The first fault of an entry; none when it may be stored, but for the name of a new one, which is looked
/// at by the caller. `exists` tells whether a file stands at a drive path.
std::optional<EntryFault> FindFault(const EntryDraft &draft, const LexiconArray &lexicons,
                                    const std::function<bool(const QString &)> &exists);

/// The fault of a name that another entry bears.
EntryFault DuplicateName(const QString &name);
