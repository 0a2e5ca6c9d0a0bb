#include "platform/data/cursor.h"

#include "platform/data/operation.h"

namespace data
{

void RaiseNotSupported()
{
    throw RuntimeError(kNotSupported, RuntimeError::defaultSource(),
                       QStringLiteral("この種類のレコードセットでは、この操作はできません。"));
}

void Cursor::MoveLast() { RaiseNotSupported(); }

void Cursor::MovePrevious() { RaiseNotSupported(); }

void Cursor::Seek(const QString & /*word*/, qint32 /*autoID*/, int /*option*/) { RaiseNotSupported(); }

void Cursor::StandOn(const QString & /*word*/, qint64 /*autoID*/) { RaiseNotSupported(); }

void Cursor::LoseRow() { RaiseNotSupported(); }

} // namespace data
