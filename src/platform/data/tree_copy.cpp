#include "platform/data/tree_copy.h"

#include "platform/data/long_work.h"
#include "platform/data/operation.h"
#include "platform/data/tree_writer.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <functional>
#include <sqlite3.h>
#include <string>

namespace data
{

using namespace page_layout;

namespace
{

/// Adds a part of what a tree holds to its digest.
void Digest(TreeDigest &digest, std::string_view part)
{
    // Odd, and as good as random: each bit moves on to others.
    constexpr quint64 factor = 0x9E3779B97F4A7C15;
    constexpr int turn = 29;
    digest.contents = (std::rotl(digest.contents, turn) ^ std::hash<std::string_view>()(part)) * factor;
}

/// Goes on through all cells of a walk that stands at the first of them.
template <typename Use> void ForEachCell(TreeWalk &walk, Use use)
{
    StoredPage::Cell cell;
    do {
        std::size_t size = 0;
        for (int i = walk.FirstCell(); i < walk.EndCell(); ++i) {
            // Cells that lie over each other would make of one page thousands.
            if (!walk.Page().CellAt(i, cell) || (size += cell.body.size()) > kPageSize)
                RaiseCode(SQLITE_CORRUPT);
            use(cell);
        }
        LetEventsThrough();
    } while (walk.Next());
    if (!walk.IsAtEnd())
        RaiseCode(SQLITE_CORRUPT);
}

/// The part of a cell that stands in its page, without the number that leads to the rest.
std::string_view PartHere(const StoredPage::Cell &cell)
{
    return cell.body.substr(0, cell.body.size() - (cell.runsOn ? kPageNumberSize : 0));
}

/// Goes through the pages in which the record of a cell runs on: what of it each holds, and whether that is
/// the last.
template <typename Use> void ForEachRest(TreeWalk &walk, const StoredPage::Cell &cell, Use use)
{
    auto number = qFromBigEndian<quint32>(cell.body.substr(PartHere(cell).size()).data());
    StoredPage page;
    for (quint64 rest = cell.size - cell.sizeHere; rest > 0;) {
        if (!walk.ReadRest(number, page))
            RaiseCode(SQLITE_CORRUPT);
        number = qFromBigEndian<quint32>(page.Buffer());
        const quint64 here = std::min<quint64>(rest, kRoomForRest);
        rest -= here;
        use(page.Bytes().substr(kPageNumberSize, here), rest == 0);
        LetEventsThrough();
    }
}

/// A page in which a record runs on.
std::string RestPage(std::string_view contents, quint32 next)
{
    std::string page(kPageSize, '\0');
    qToBigEndian(next, page.data());
    std::ranges::copy(contents, page.begin() + kPageNumberSize);
    return page;
}

} // namespace

std::optional<TreeDigest> CopyTree(Session &source, TreeWalk::Tree tree, PageAppender &pages, quint32 root)
{
    TreeWalk walk(source, tree);
    if (!walk.Seek(nullptr))
        return std::nullopt;
    TreeDigest digest;
    TreeWriter writer(pages, tree == TreeWalk::Tree::Table);
    ForEachCell(walk, [&](const StoredPage::Cell &cell) {
        Digest(digest, PartHere(cell));
        ++digest.cells;
        if (!cell.runsOn) {
            writer.Add(cell.body);
            return;
        }
        std::string body(cell.body);
        qToBigEndian(pages.Next(), &body[PartHere(cell).size()]);
        ForEachRest(walk, cell, [&](std::string_view part, bool isLast) {
            Digest(digest, part);
            pages.Append(RestPage(part, isLast ? 0 : PageAppender::Behind(pages.Next())));
        });
        writer.Add(body);
    });
    writer.Finish(root);
    return digest;
}

TreeDigest DigestTree(Session &session, TreeWalk::Tree tree)
{
    TreeWalk walk(session, tree);
    if (!walk.Seek(nullptr))
        RaiseCode(SQLITE_CORRUPT);
    TreeDigest digest;
    ForEachCell(walk, [&](const StoredPage::Cell &cell) {
        Digest(digest, PartHere(cell));
        ++digest.cells;
        if (cell.runsOn)
            ForEachRest(walk, cell, [&](std::string_view part, bool) { Digest(digest, part); });
    });
    return digest;
}

} // namespace data
