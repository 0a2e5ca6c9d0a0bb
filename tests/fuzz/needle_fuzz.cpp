// A needle and a text, divided by a zero byte: a compiled needle finds what text comparison finds.

#include "platform/text/needle.h"
#include "require.h"

#include <algorithm>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view input(reinterpret_cast<const char *>(data), size);
    const size_t divider = std::min(input.find('\0'), size);
    const std::string_view rest = input.substr(std::min(divider + 1, size));
    const QString wanted = QString::fromUtf8(input.data(), static_cast<qsizetype>(divider));
    const QString searched = QString::fromUtf8(rest.data(), static_cast<qsizetype>(rest.size()));
    const text::Needle needle(wanted);
    for (const qsizetype from : {1, 2, 7}) {
        const text::Match expected = text::FindMatch(searched, wanted, from);
        const text::Match match = needle.FindMatch(searched, from);
        Require(match.position == expected.position && match.length == expected.length);
    }
    return 0;
}
