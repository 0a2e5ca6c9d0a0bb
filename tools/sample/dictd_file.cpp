#include "dictd_file.h"

#include "platform/failure/runtime_error.h"

#include <QFile>
#include <QMap>
#include <memory>
#include <zlib.h>

namespace
{

QByteArray ReadCompressed(const QString &path)
{
    const std::unique_ptr<gzFile_s, decltype(&gzclose)> file(
        gzopen(QFile::encodeName(path).constData(), "rb"), &gzclose);
    if (!file)
        throw RuntimeError(RuntimeError::FileNotFound);
    QByteArray content;
    QByteArray chunk(1 << 16, '\0');
    int length = 0;
    while ((length = gzread(file.get(), chunk.data(), static_cast<unsigned>(chunk.size()))) > 0)
        content.append(chunk.constData(), length);
    if (length < 0)
        throw RuntimeError(RuntimeError::DeviceIoError);
    return content;
}

/// Where the entries lie: length by offset.
QMap<qint64, qint64> ReadIndex(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(RuntimeError::FileNotFound);
    QMap<qint64, qint64> places;
    while (!file.atEnd()) {
        const QList<QByteArray> fields = file.readLine().trimmed().split('\t');
        if (fields.size() < 3 || fields[0].startsWith("00database"))
            continue;
        const qint64 offset = sample::DictdNumber(fields[1]);
        const qint64 length = sample::DictdNumber(fields[2]);
        if (offset < 0 || length < 0)
            throw RuntimeError(RuntimeError::DeviceIoError);
        places.insert(offset, length);
    }
    return places;
}

} // namespace

qint64 sample::DictdNumber(const QByteArray &digits)
{
    static const QByteArray alphabet("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
    constexpr qsizetype kMostDigits = 10;
    if (digits.isEmpty() || digits.size() > kMostDigits)
        return -1;
    qint64 number = 0;
    for (const char digit : digits) {
        const qsizetype value = alphabet.indexOf(digit);
        if (value < 0)
            return -1;
        number = number * alphabet.size() + value;
    }
    return number;
}

QList<QByteArray> sample::ReadDictd(const QString &base)
{
    const QByteArray content = ReadCompressed(base + QStringLiteral(".dict.dz"));
    const QMap<qint64, qint64> places = ReadIndex(base + QStringLiteral(".index"));
    QList<QByteArray> texts;
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        if (place.key() > content.size() || place.value() > content.size() - place.key())
            throw RuntimeError(RuntimeError::DeviceIoError);
        texts.append(content.sliced(place.key(), place.value()));
    }
    return texts;
}
