#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

inline constexpr int kFavoriteNameLength = 128;
inline constexpr int kFavoriteAddressLength = 255;
inline constexpr int kFavoriteRecordLength = kFavoriteNameLength + kFavoriteAddressLength;

/// A web site to come back to.
struct Favorite {
    QString name, address;
    bool operator==(const Favorite &) const = default;
};

/// The content of `favorite.dat`: a record a favourite, in Shift_JIS and padded with blanks. A longer
/// name or address is cut on the boundary of a character.
QByteArray EncodeFavorites(const QList<Favorite> &favorites);

/// The favourite of a record of kFavoriteRecordLength bytes.
Favorite DecodeFavorite(const QByteArray &record);
