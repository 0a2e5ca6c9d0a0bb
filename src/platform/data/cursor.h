#pragma once

#include "platform/data/statement.h"

#include <QString>
#include <QVariant>

namespace data
{

/// Raises 3251: this kind of recordset does not offer the operation.
[[noreturn]] void RaiseNotSupported();

/// The rows that a recordset goes through. A cursor stands on a row, before the first or behind the
/// last. Columns of the row are read when they are asked for.
class Cursor
{
public:
    Cursor() = default;
    virtual ~Cursor() = default;
    Cursor(const Cursor &) = delete;
    Cursor &operator=(const Cursor &) = delete;

    virtual bool Eof() = 0;
    virtual bool Bof() = 0;
    virtual void MoveFirst() = 0;
    /// Raises 3021 behind the last row.
    virtual void MoveNext() = 0;
    /// A column of the current row; raises 3021 where there is none.
    virtual QVariant Value(Column column) = 0;
    /// The AutoID of the current row; raises 3021 where there is none.
    virtual qint64 CurrentID() = 0;

    /// What only the table offers; raises 3251 here.
    virtual void MoveLast();
    virtual void MovePrevious();
    virtual void Seek(const QString &word, qint32 autoID, int option);
    /// Makes a row that was just stored the current one.
    virtual void StandOn(const QString &word, qint64 autoID);
    /// Keeps the place of a row that was just deleted.
    virtual void LoseRow();
};

} // namespace data
