#include "platform/data/adodb.h"

#include "platform/data/connection_string.h"
#include "platform/data/dictionary_file.h"
#include "platform/data/operation.h"
#include "platform/data/recordset_private.h"
#include "platform/data/session.h"
#include "platform/data/statement.h"

namespace ADODB
{

using data::kConnectionSource;
using data::kRecordsetSource;
using data::Operation;

Connection::Connection() : d(std::make_shared<ConnectionPrivate>()) {}

Connection::~Connection() = default;

QString Connection::ConnectionString() const { return d->connectionString; }

void Connection::SetConnectionString(const QString &value) { d->connectionString = value; }

void Connection::Open(const QString &connectionString, const QString & /*user*/, const QString & /*password*/,
                      int /*options*/)
{
    Operation(kConnectionSource, "Open", [&] {
        if (State() == adStateOpen)
            throw RuntimeError(RuntimeError::ObjectOpen);
        if (!connectionString.isEmpty())
            d->connectionString = connectionString;
        const QString path = data::ParseConnectionString(d->connectionString).path;
        if (path.isEmpty())
            throw RuntimeError(RuntimeError::CannotOpenDatabase);
        d->session = data::OpenDictionaryFile(path);
    });
}

std::shared_ptr<Recordset> Connection::Execute(const QString &statement, int /*options*/)
{
    return Operation(kConnectionSource, "Execute", [&] {
        const std::shared_ptr<data::Session> &session = d->Session();
        if (EngineHooks().statement)
            EngineHooks().statement(statement);
        auto recordset = std::make_shared<Recordset>();
        recordset->d->OpenStatement(session, statement);
        return recordset;
    });
}

void Connection::Close()
{
    Operation(kConnectionSource, "Close", [&] {
        const std::shared_ptr<data::Session> session = d->Session();
        d->session.reset();
        session->Close();
    });
}

int Connection::State() const { return d->session && d->session->IsOpen() ? adStateOpen : adStateClosed; }

ConnectionPrivate *Impl(Connection &connection) { return connection.d.get(); }

QVariant Field::Value() const
{
    return Operation(kRecordsetSource, "Value",
                     [&] { return m_recordset->Value(static_cast<data::Column>(m_column)); });
}

QString Field::Text() const { return Value().toString(); }

void Field::SetValue(const QVariant &value)
{
    Operation(kRecordsetSource, "Value",
              [&] { m_recordset->SetValue(static_cast<data::Column>(m_column), value); });
}

Field Fields::Item(const QString &name) const
{
    return Operation(kRecordsetSource, "Item", [&] {
        const int column = data::ColumnNamed(name);
        if (column < 0)
            throw RuntimeError(RuntimeError::ItemNotFound);
        return Field(m_recordset, column);
    });
}

Recordset::Recordset() : d(std::make_shared<RecordsetPrivate>()) {}

Recordset::~Recordset() = default;

void Recordset::Open(const QString &source, Connection &connection, int cursorType, int lockType, int options)
{
    Operation(kRecordsetSource, "Open", [&] {
        if (d->IsOpen())
            throw RuntimeError(RuntimeError::ObjectOpen);
        if (cursorType >= 0)
            d->cursorType = cursorType;
        if (lockType >= 0)
            d->lockType = lockType;
        const std::shared_ptr<data::Session> &session = connection.d->Session();
        if (options == adCmdTable && d->cursorType == adOpenDynamic && d->lockType == adLockOptimistic) {
            d->OpenBulk(session, source);
        } else if (options == adCmdTable || options == adCmdTableDirect) {
            d->OpenTable(session, source);
        } else {
            if (EngineHooks().statement)
                EngineHooks().statement(source);
            d->OpenStatement(session, source);
        }
    });
}

void Recordset::Close()
{
    Operation(kRecordsetSource, "Close", [&] { d->Close(); });
}

int Recordset::State() const { return d->IsOpen() ? adStateOpen : adStateClosed; }

int Recordset::CursorType() const { return d->cursorType; }

void Recordset::SetCursorType(int type) { d->cursorType = type; }

int Recordset::LockType() const { return d->lockType; }

void Recordset::SetLockType(int type) { d->lockType = type; }

void Recordset::SetIndex(const QString &name)
{
    Operation(kRecordsetSource, "Index", [&] { d->SetIndex(name); });
}

QString Recordset::Index() const { return d->index; }

bool Recordset::Eof() const
{
    return Operation(kRecordsetSource, "EOF", [&] { return d->Rows().Eof(); });
}

bool Recordset::Bof() const
{
    return Operation(kRecordsetSource, "BOF", [&] { return d->Rows().Bof(); });
}

ADODB::Fields Recordset::Fields() { return ADODB::Fields(d.get()); }

void Recordset::MoveFirst()
{
    Operation(kRecordsetSource, "MoveFirst", [&] { d->RowsToMove().MoveFirst(); });
}

void Recordset::MoveLast()
{
    Operation(kRecordsetSource, "MoveLast", [&] { d->RowsToMove().MoveLast(); });
}

void Recordset::MoveNext()
{
    Operation(kRecordsetSource, "MoveNext", [&] { d->RowsToMove().MoveNext(); });
}

void Recordset::MovePrevious()
{
    Operation(kRecordsetSource, "MovePrevious", [&] { d->RowsToMove().MovePrevious(); });
}

void Recordset::Seek(const QString &word, qint32 autoID, int option)
{
    Operation(kRecordsetSource, "Seek", [&] { d->RowsToMove().Seek(word, autoID, option); });
}

void Recordset::AddNew()
{
    Operation(kRecordsetSource, "AddNew", [&] { d->AddNew(); });
}

void Recordset::Update()
{
    Operation(kRecordsetSource, "Update", [&] { d->Update(); });
}

void Recordset::Delete(int affect)
{
    Operation(kRecordsetSource, "Delete", [&] {
        if (affect != adAffectCurrent)
            throw RuntimeError(RuntimeError::InvalidCall);
        d->Delete();
    });
}

void Recordset::Flush()
{
    Operation(kRecordsetSource, "Flush", [&] { d->Flush(); });
}

Hooks &EngineHooks()
{
    static Hooks hooks;
    return hooks;
}

void ReleaseReads() { data::Session::ReleaseAllReads(); }

void CommitGroups() { data::Session::CommitAllGroups(); }

} // namespace ADODB
