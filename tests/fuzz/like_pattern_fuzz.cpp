// A pattern and a text, divided by a zero byte: whatever they are, nothing but the one failure comes
// of it, and what the raw search rules out really does not match.

#include "platform/data/like_pattern.h"
#include "platform/data/text_scanner.h"
#include "platform/failure/runtime_error.h"
#include "platform/text/fold.h"
#include "require.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace
{

void TestScanner(std::u32string_view literal, std::string_view text, std::u32string_view folded)
{
    const data::TextScanner scanner(literal);
    const bool isThere = folded.find(literal) != std::u32string_view::npos;
    for (const auto vectors : {data::TextScanner::Vectors::Widest, data::TextScanner::Vectors::Baseline}) {
        const auto finding = scanner.Find(text, vectors);
        Require(!isThere || finding != data::TextScanner::Finding::Absent);
        Require(isThere || finding != data::TextScanner::Finding::Certain);
        std::vector<size_t> places;
        const bool areAll = scanner.FindPlaces(text, places, text.size(), vectors);
        Require(!isThere || !areAll || !places.empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto *bytes = reinterpret_cast<const char *>(data);
    const std::string_view input(bytes, size);
    const size_t divider = std::min(input.find('\0'), size);
    const QString pattern = QString::fromUtf8(bytes, static_cast<qsizetype>(divider));
    const std::string_view text = input.substr(std::min(divider + 1, size));
    std::u32string folded;
    text::FoldUtf8(text, folded);
    TestScanner(text::Fold(pattern).folded, text, folded);
    try {
        const data::LikePattern compiled(pattern);
        const bool matches = compiled.Matches(text);
        const std::u32string &prefix = compiled.Prefix();
        if (matches)
            Require(folded.starts_with(prefix));
        if (compiled.IsLiteral())
            Require(matches == (folded == prefix));
        if (compiled.IsPrefixRange())
            Require(matches == folded.starts_with(prefix));
    } catch (const RuntimeError &error) {
        Require(error.number() == RuntimeError::InvalidStatement);
    }
    return 0;
}
