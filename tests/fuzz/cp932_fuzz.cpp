// Any bytes decode, and any text comes back from a record as it was.

#include "platform/text/shift_jis.h"
#include "require.h"

#include <QByteArray>
#include <cstring>

namespace
{

void TestText(const QString &text)
{
    const QByteArray record = text::EncodeRecord(text);
    Require(text::DecodeRecord(record) == text);
    Require(text::FixedField(text, record.size()) == record);
    Require(!text::FieldCuts(text, record.size()));
    const qsizetype half = record.size() / 2;
    const QByteArray cut = text::FixedField(text, half);
    Require(cut.size() == half);
    QString kept = text::DecodeRecord(cut);
    while (!kept.isEmpty() && !text.startsWith(kept)) {
        Require(kept.back() == u' ');
        kept.chop(1);
    }
    // Pages and plain text hold nothing that does not decode.
    Require(text::EncodePage(text::Decode(text::EncodePage(text))) == text::EncodePage(text));
    Require(text::EncodePlain(text::Decode(text::EncodePlain(text))) == text::EncodePlain(text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QString decoded = text::Decode(bytes);
    Require(decoded.size() <= bytes.size());
    TestText(decoded);
    TestText(text::DecodeRecord(bytes));

    QString units(static_cast<qsizetype>(size / sizeof(char16_t)), u' ');
    if (!units.isEmpty())
        std::memcpy(units.data(), data, static_cast<size_t>(units.size()) * sizeof(char16_t));
    TestText(units);
    return 0;
}
