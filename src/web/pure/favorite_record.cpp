#include "web/pure/favorite_record.h"

#include "platform/text/shift_jis.h"
#include "platform/text/trim.h"

QByteArray EncodeFavorites(const QList<Favorite> &favorites)
{
    QByteArray content;
    content.reserve(favorites.size() * kFavoriteRecordLength);
    for (const Favorite &favorite : favorites)
        content += text::FixedField(favorite.name, kFavoriteNameLength) +
                   text::FixedField(favorite.address, kFavoriteAddressLength);
    return content;
}

Favorite DecodeFavorite(const QByteArray &record)
{
    const auto field = [&](qsizetype offset, qsizetype size) {
        return text::FieldText(text::DecodeRecord(record.sliced(offset, size)));
    };
    return {field(0, kFavoriteNameLength), field(kFavoriteNameLength, kFavoriteAddressLength)};
}
