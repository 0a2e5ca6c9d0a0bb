#pragma once

#include <QString>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace data
{

/// A LIKE pattern, compiled once for a statement: `%` any run, `_` one code point, `[abc]`, `[a-z]`,
/// `[!a]`, `[^a]` one code point in (not in) a class; `[%]`, `[_]`, `[[]` stand for themselves. Text
/// is compared by the fold of platform/text; a range of a class is one of weights.
class LikePattern
{
public:
    /// Raises -2147217900 for an unbalanced bracket, an empty class or a range that runs backwards.
    explicit LikePattern(QStringView pattern);
    ~LikePattern();
    LikePattern(LikePattern &&) noexcept;
    LikePattern &operator=(LikePattern &&) noexcept;

    /// Whether the whole text matches. Reads nothing beyond the view; copies nothing for texts that
    /// a literal part rules out.
    bool Matches(std::string_view utf8) const;

    /// Whether bytes may hold a text that matches, whatever else they hold; false is exact.
    bool MayMatchWithin(std::string_view bytes) const;
    /// Where in such bytes: each text that matches holds one of the places. False, and some of them,
    /// where there are more than `most`, and for a pattern without a literal to look for.
    bool FindPlaces(std::string_view bytes, std::vector<size_t> &places, size_t most) const;

    /// The folded literal that every match begins with; empty when there is none.
    const std::u32string &Prefix() const;
    /// Whether the pattern is a literal without any wildcard: matches are the texts equal to Prefix.
    bool IsLiteral() const;
    /// Whether it is Prefix and then `%` alone: every text of that range matches.
    bool IsPrefixRange() const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> d;
};

} // namespace data
