#include "search/pure/result_record.h"

#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

namespace
{

constexpr int kWordLength = 512;
constexpr int kNumberLength = 8;
/// The longest reference (`&#x10FFFF;`): a cut leaves less than that unused.
constexpr int kLongestCharacter = 10;

} // namespace

QByteArray EncodeResult(const QString &word, qint32 autoID)
{
    return text::FixedField(text::Trim(word), kWordLength) +
           QByteArray::number(autoID).rightJustified(kNumberLength, '0', true);
}

ResultKey DecodeResult(const QByteArray &record)
{
    const QByteArray field = record.first(kWordLength);
    ResultKey key;
    key.word = text::FieldText(text::DecodeRecord(field));
    key.autoID = ResultNumber(record);
    key.wordMayBeCut = !text::FieldText(text::DecodeRecord(field.last(kLongestCharacter))).isEmpty();
    return key;
}

qint32 ResultNumber(const QByteArray &record) { return record.sliced(kWordLength, kNumberLength).toInt(); }
