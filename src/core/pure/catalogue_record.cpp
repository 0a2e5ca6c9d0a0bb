#include "core/pure/catalogue_record.h"

#include "core/pure/record_bytes.h"
#include "platform/text/fold.h"
#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

namespace
{

QString TextIn(const QByteArray &field) { return text::FieldText(text::DecodeRecord(field)); }

/// The field itself where bytes of it mean nothing in code page 932, else nothing.
QByteArray Foreign(const QByteArray &field)
{
    return text::EncodeRecord(text::DecodeRecord(field)).size() == field.size() ? QByteArray() : field;
}

/// What was read stays until another text takes its place.
QByteArray FieldOf(const QString &text, const QByteArray &foreign, int size)
{
    return !foreign.isEmpty() && TextIn(foreign) == text ? foreign : text::FixedField(text, size);
}

} // namespace

qsizetype SlotNamed(const QList<Lexicon> &lexicons, const QString &name)
{
    const QString sought = text::Trim(name);
    qsizetype alike = -1;
    for (qsizetype slot = 0; slot + 1 < lexicons.size(); ++slot) {
        const Lexicon &entry = lexicons.at(slot);
        const QString there = text::Trim(entry.DicName);
        if (entry.IsDeleted != 0 || !text::Same(there, sought))
            continue;
        if (there == sought)
            return slot;
        if (alike < 0)
            alike = slot;
    }
    return alike;
}

QByteArray EncodeLexicon(const Lexicon &lexicon)
{
    QByteArray record = FieldOf(lexicon.DicName, lexicon.nameField, kDicNameLength) +
                        FieldOf(lexicon.DicPath, lexicon.pathField, kDicPathLength);
    AppendLittleEndian(record, lexicon.IsSelected);
    AppendLittleEndian(record, qint16{0});
    return record;
}

Lexicon DecodeLexicon(const QByteArray &record)
{
    Lexicon lexicon;
    const QByteArray name = record.first(kDicNameLength);
    const QByteArray path = record.sliced(kDicNameLength, kDicPathLength);
    lexicon.DicName = TextIn(name);
    lexicon.DicPath = TextIn(path);
    lexicon.nameField = Foreign(name);
    lexicon.pathField = Foreign(path);
    lexicon.IsSelected = LittleEndianAt<qint16>(record, kDicNameLength + kDicPathLength);
    return lexicon;
}
