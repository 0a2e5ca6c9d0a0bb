#include "core/pure/catalogue_record.h"

#include "core/pure/record_bytes.h"
#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

QByteArray EncodeLexicon(const Lexicon &lexicon)
{
    QByteArray record =
        text::FixedField(lexicon.DicName, kDicNameLength) + text::FixedField(lexicon.DicPath, kDicPathLength);
    AppendLittleEndian(record, lexicon.IsSelected);
    AppendLittleEndian(record, qint16{0});
    return record;
}

Lexicon DecodeLexicon(const QByteArray &record)
{
    Lexicon lexicon;
    lexicon.DicName = text::FieldText(text::DecodeRecord(record.first(kDicNameLength)));
    lexicon.DicPath = text::FieldText(text::DecodeRecord(record.sliced(kDicNameLength, kDicPathLength)));
    lexicon.IsSelected = LittleEndianAt<qint16>(record, kDicNameLength + kDicPathLength);
    return lexicon;
}
