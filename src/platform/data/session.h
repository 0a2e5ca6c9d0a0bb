#pragma once

#include "platform/data/prepared.h"
#include "platform/failure/runtime_error.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>

namespace data
{

/// One SQLite connection with its transactions. All sessions of the process know each other, so that
/// none ever waits for a lock of its own process. Sessions belong to one thread.
class Session
{
public:
    enum class Access { Existing, ReadOnly, Create };

    /// Opens the file, a host path; `drivePath` is the name under which it is asked whether it may be
    /// written. Raises -2147467259. SQLite touches the file only at the first statement.
    Session(const QString &hostPath, const QString &drivePath, Access access);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// Ends what is in progress (a group of the bulk writer is committed) and closes the file.
    void Close();
    bool IsOpen() const { return m_database != nullptr; }
    sqlite3 *Database() const { return m_database; }
    const QString &HostPath() const { return m_hostPath; }
    const QString &DrivePath() const { return m_drivePath; }
    /// Whether writing has a chance: the file is not read-only.
    bool IsWritable() const;

    Prepared Prepare(std::string_view sql) const { return Prepared(m_database, sql); }
    /// Runs one statement that gives no row of interest.
    void Run(std::string_view sql) const { Prepare(sql).Step(); }
    /// The number in the first row of a query, 0 where there is none.
    qint64 NumberOf(std::string_view sql) const;

    /// Begins the read transaction in which all reading goes on until ReleaseRead; does nothing within
    /// a transaction.
    void BeginRead();
    /// Gives up the read transaction: open statements end.
    void ReleaseRead();
    /// Counts the moments at which open statements lost their place.
    quint64 Generation() const { return m_generation; }

    /// Begins a write transaction, after all reads of the process and the groups that others hold on
    /// this file were given up. Raises 70 for a file that is not writable.
    void BeginWrite();
    void Commit();
    void Rollback();
    bool IsWriting() const { return m_writing; }
    /// Does `work` in a write transaction of its own: all of it or nothing.
    template <typename Work> void Write(Work &&work)
    {
        BeginWrite();
        try {
            work();
        } catch (...) {
            Rollback();
            throw;
        }
        Commit();
    }

    /// What commits the group that a bulk writer holds on this session; empty for none.
    void SetGroupCommit(std::function<void()> commit) { m_commitGroup = std::move(commit); }
    /// Raises, once, what became of a group that was committed for others, who had no part in it.
    void RaiseGroupFailure();
    /// While it is set, ReleaseRead leaves the session alone: long work stands in one statement.
    void SetInLongWork(bool inWork) { m_inLongWork = inWork; }

    /// ReleaseRead of all sessions.
    static void ReleaseAllReads();
    /// Commits the groups of all sessions; what fails is kept for RaiseGroupFailure.
    static void CommitAllGroups();

private:
    static int WaitForLock(void *session, int tries);
    bool OthersHold() const;
    void CommitGroupsOfOthers();
    void CommitGroupForOthers();
    void ResetStatements();

    QString m_hostPath;
    QString m_drivePath;
    sqlite3 *m_database = nullptr;
    Prepared m_begin;
    Prepared m_commit;
    quint64 m_generation = 0;
    bool m_reading = false;
    bool m_writing = false;
    bool m_inLongWork = false;
    int m_waited = 0; ///< milliseconds that the operation in progress has waited for locks
    std::function<void()> m_commitGroup;
    std::optional<RuntimeError> m_groupFailure;
};

} // namespace data
