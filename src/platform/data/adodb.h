#pragma once

#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

/// Data access on dictionary files: one SQLite file with the extension `.mdb` holding the table
/// `Dictionary`, reached by connections and recordsets. Paths in connection strings are drive paths.
/// Failures: -2147467259 (the file cannot be opened, is locked or is no dictionary), -2147217900
/// (invalid statement or pattern), -2147217887 (a value that a column does not take), 3021 (no
/// current row), 3265 (no such column), 3704/3705 (closed/open object).
namespace ADODB
{

enum CursorTypeEnum : int { adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum LockTypeEnum : int {
    adLockUnspecified = -1,
    adLockReadOnly = 1,
    adLockPessimistic = 2,
    adLockOptimistic = 3
};
enum CommandTypeEnum : int { adCmdUnspecified = -1, adCmdText = 1, adCmdTable = 2, adCmdTableDirect = 512 };
enum SeekEnum : int { adSeekFirstEQ = 1, adSeekBeforeEQ = 16 };
enum ObjectStateEnum : int { adStateClosed = 0, adStateOpen = 1, adStateExecuting = 4 };
enum AffectEnum : int { adAffectCurrent = 1 };
enum DataTypeEnum : int { adSmallInt = 2, adInteger = 3, adVarWChar = 202, adLongVarWChar = 203 };

class ConnectionPrivate;
class RecordsetPrivate;
class Recordset;

/// A connection to one dictionary file.
class Connection
{
public:
    Connection();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    QString ConnectionString() const;
    void SetConnectionString(const QString &value);

    /// Opens the file of the connection string ("...Data Source=PATH;", the last semicolon may be
    /// missing; an empty argument takes ConnectionString). Never creates a file. Builds an index
    /// that is missing or of another fold version where the file is writable.
    void Open(const QString &connectionString = {}, const QString &user = {}, const QString &password = {},
              int options = -1);

    /// Runs a SELECT statement of the dialect; the recordset is read once from front to back.
    std::shared_ptr<Recordset> Execute(const QString &statement, int options = adCmdText);

    void Close();
    int State() const;

private:
    friend class Recordset;
    friend class RecordsetPrivate;
    friend ConnectionPrivate *Impl(Connection &connection);
    std::shared_ptr<ConnectionPrivate> d;
};
ConnectionPrivate *Impl(Connection &connection);

/// One column of the current row.
class Field
{
public:
    /// The value: QString, int, or an invalid QVariant for null. Raises 3021 without a current row,
    /// -2147467259 in a table without any row.
    QVariant Value() const;
    /// The value as text, empty for null.
    QString Text() const;
    /// Stored at the next Update. Text that is longer than the column raises -2147217887.
    void SetValue(const QVariant &value);

private:
    friend class Fields;
    Field(RecordsetPrivate *recordset, int column) : m_recordset(recordset), m_column(column) {}
    RecordsetPrivate *m_recordset;
    int m_column;
};

/// The columns of a recordset by name, case ignored; raises 3265.
class Fields
{
public:
    Field Item(const QString &name) const;

private:
    friend class Recordset;
    explicit Fields(RecordsetPrivate *recordset) : m_recordset(recordset) {}
    RecordsetPrivate *m_recordset;
};

/// Rows of the table in index order, or of a statement.
class Recordset
{
public:
    Recordset();
    ~Recordset();
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    /// Opens the table "Dictionary" (options adCmdTable or adCmdTableDirect) or a statement (-1 or
    /// adCmdText) on an open connection. adOpenDynamic with adLockOptimistic and adCmdTable is the
    /// bulk writer: see Update.
    void Open(const QString &source, Connection &connection, int cursorType = -1, int lockType = -1,
              int options = adCmdUnspecified);
    void Close();
    int State() const;

    int CursorType() const;
    void SetCursorType(int type);
    int LockType() const;
    void SetLockType(int type);
    /// Only "WordID"; puts the cursor on the first row in index order.
    void SetIndex(const QString &name);
    QString Index() const;

    bool Eof() const;
    bool Bof() const;
    ADODB::Fields Fields();

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// adSeekFirstEQ: the row with exactly this key, else Eof. adSeekBeforeEQ: that row, or the last
    /// one before it, else Eof.
    void Seek(const QString &word, qint32 autoID, int option);

    /// Begins a new row; Update stores it and makes it the current one.
    void AddNew();
    /// Stores the new or changed row and commits it. The bulk writer commits in groups, at most
    /// 250 ms apart, at Close and at Flush.
    void Update();
    /// Deletes the current row and commits; the cursor stays at its place without a row.
    void Delete(int affect = adAffectCurrent);
    /// Commits what the bulk writer holds back.
    void Flush();

private:
    friend class Connection;
    std::shared_ptr<RecordsetPrivate> d;
};

/// What the engine asks of the program around it. All are empty at first.
struct Hooks {
    /// Called about every 50 ms in long work of the engine (building an index, compacting).
    std::function<void()> progress;
    /// Called in its place while a dictionary is being opened; empty for the same. What it lets happen must
    /// not open one.
    std::function<void()> opening;
    /// Called with true before and false after such work.
    std::function<void(bool)> busy;
    /// Called with each statement that Execute or Open runs.
    std::function<void(const QString &)> statement;
};
Hooks &EngineHooks();

/// Gives up every read transaction of this process; each recordset resumes behind its place. Called
/// before each turn of the event loop, so that others can write in it.
void ReleaseReads();

/// Commits what the bulk writers of this process hold back, before anything waits for the user. Raises
/// nothing: the next operation of the bulk writer raises what failed.
void CommitGroups();

} // namespace ADODB
