#pragma once

#include <QByteArray>
#include <QtEndian>

/// Appends a number little-endian.
template <typename T> void AppendLittleEndian(QByteArray &bytes, T value)
{
    char raw[sizeof(T)];
    qToLittleEndian(value, raw);
    bytes.append(raw, sizeof(T));
}

/// Reads a number little-endian at an offset that the caller knows to be inside.
template <typename T> T LittleEndianAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}
