#pragma once

#include "platform/data/page_appender.h"
#include "platform/data/tree_walk.h"

#include <optional>

namespace data
{

/// What the cells of a tree hold, in short: the same for the same cells in the same order, and for others as
/// good as never.
struct TreeDigest {
    qint64 cells = 0;
    quint64 contents = 0;

    bool operator==(const TreeDigest &) const = default;
};

// Both within long work: the session stays in its read transaction. They raise -2147467259 for a tree that
// is damaged.

/// Copies the table or the index of a dictionary file, cell by cell and none of them taken apart, into new
/// and full pages of a file that is being made; the root takes the place of a page that is there already.
/// Nothing is done, and nothing comes back, where the source is laid out in another way than the pages that
/// are made. Raises also what the writing raises.
std::optional<TreeDigest> CopyTree(Session &source, TreeWalk::Tree tree, PageAppender &pages, quint32 root);

/// Reads the cells of a tree that CopyTree has made.
TreeDigest DigestTree(Session &session, TreeWalk::Tree tree);

} // namespace data
