#include "platform/data/operation.h"

#include <sqlite3.h>

namespace
{

struct Meaning {
    qint32 number;
    QString description;
};

Meaning MeaningOf(int code)
{
    switch (code) {
    case SQLITE_READONLY_ROLLBACK:
    case SQLITE_READONLY_RECOVERY:
    case SQLITE_READONLY_CANTLOCK:
        return {
            RuntimeError::CannotOpenDatabase,
            QStringLiteral("前回の書き込みが途中で終わっていますが、書き込みできないため元に戻せません。")};
    default: break;
    }
    switch (code & 0xFF) {
    case SQLITE_FULL: return {RuntimeError::DiskFull, {}};
    case SQLITE_READONLY:
    case SQLITE_PERM: return {RuntimeError::PermissionDenied, {}};
    case SQLITE_NOMEM: return {7, {}};
    case SQLITE_TOOBIG:
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH: return {RuntimeError::ProviderError, {}};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {RuntimeError::CannotOpenDatabase,
                QStringLiteral("辞書データベースは他のプログラムが使用中です。")};
    case SQLITE_CORRUPT:
        return {RuntimeError::CannotOpenDatabase, QStringLiteral("辞書データベースが壊れています。")};
    default: return {RuntimeError::CannotOpenDatabase, {}};
    }
}

} // namespace

void data::RaiseCode(int code)
{
    const Meaning meaning = MeaningOf(code);
    throw RuntimeError(meaning.number, RuntimeError::defaultSource(),
                       meaning.description.isEmpty() ? RuntimeError::descriptionOf(meaning.number)
                                                     : meaning.description);
}
