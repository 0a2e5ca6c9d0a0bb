#pragma once

#include "core/pure/dictionary_file.h"
#include "platform/data/adodb.h"
#include "platform/data/adox.h"
#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

/// A row as tests see it.
struct Entry {
    QString word;
    int autoID = 0;

    bool operator==(const Entry &) const = default;
};

inline void PrintTo(const Entry &entry, std::ostream *out)
{
    *out << entry.word.toStdString() << " #" << entry.autoID;
}

/// A connection and a recordset on it, opened as the program opens them.
struct View {
    ADODB::Connection connection;
    ADODB::Recordset rows;

    QString Text(const char *column) { return rows.Fields().Item(QLatin1String(column)).Text(); }
    QVariant Value(const char *column) { return rows.Fields().Item(QLatin1String(column)).Value(); }
    void Set(const char *column, const QVariant &value)
    {
        rows.Fields().Item(QLatin1String(column)).SetValue(value);
    }
    Entry Current() { return {Text("Word"), Value("AutoID").toInt()}; }
    /// Adds a row with this headword and a meaning that tells it.
    Entry Add(const QString &word)
    {
        rows.AddNew();
        Set("Word", word);
        Set("WordPhrase", word.contains(u' ') ? 2 : 1);
        Set("Description", QStringLiteral("<%1>").arg(word));
        rows.Update();
        return Current();
    }
};

/// Another process that does something when it is told and keeps what it got until it is let go. It has to
/// be there before this one opens the files that it uses.
class OtherProcess
{
public:
    /// `begin` returns what is kept.
    explicit OtherProcess(const std::function<std::shared_ptr<void>()> &begin);
    ~OtherProcess();
    OtherProcess(const OtherProcess &) = delete;
    OtherProcess &operator=(const OtherProcess &) = delete;

    /// Runs `begin` there; false where it raised.
    bool Begin() const;
    /// Lets go, after so many milliseconds; returns at once.
    void LetGo(int after = 0);

private:
    int m_toChild = -1;
    int m_toParent = -1;
    int m_child = -1;
};

/// A test with a folder of its own, nothing injected and no hooks.
class DictionaryTest : public testing::Test
{
protected:
    DictionaryTest() { Reset(); }
    ~DictionaryTest() override { Reset(); }

    QString Host(const QString &name = QStringLiteral("a.mdb")) const { return m_folder.filePath(name); }
    QString Drive(const QString &name = QStringLiteral("a.mdb")) const
    {
        return files::DrivePath(Host(name));
    }
    QString ConnectionTo(const QString &name = QStringLiteral("a.mdb")) const
    {
        return ViewConnectionString(Drive(name));
    }
    QStringList Names() const;

    /// Makes a new file as the program does.
    void Create(const QString &name = QStringLiteral("a.mdb")) const;
    /// A new file with these headwords, in this order.
    void CreateWith(const QStringList &words, const QString &name = QStringLiteral("a.mdb")) const;

    std::unique_ptr<View> OpenTable(const QString &name = QStringLiteral("a.mdb")) const;
    std::unique_ptr<View> OpenBulk(const QString &name = QStringLiteral("a.mdb")) const;

    /// All rows from the recordset's place on.
    static std::vector<Entry> Rest(ADODB::Recordset &rows);
    /// All rows of the file in the order of the index.
    std::vector<Entry> All(const QString &name = QStringLiteral("a.mdb")) const;
    /// The rows of a statement.
    std::vector<Entry> Select(const QString &statement, const QString &name = QStringLiteral("a.mdb")) const;
    QStringList SelectWords(const QString &statement) const;

    /// Writes a compact copy of the one file as the other.
    void Compact(const QString &from = QStringLiteral("a.mdb"),
                 const QString &to = QStringLiteral("b.mdb")) const;

    /// Runs SQL on the file behind the engine's back, with an order of headwords of its own.
    void RunRaw(const char *sql, const QString &name = QStringLiteral("a.mdb")) const;
    /// The text in the first column of the first row.
    std::string AskRaw(const char *sql, const QString &name = QStringLiteral("a.mdb")) const;

    /// Begins a write transaction on the file that keeps everybody else out until it goes.
    std::shared_ptr<void> LockExclusively(const QString &name = QStringLiteral("a.mdb")) const;

    /// Runs `body` in a process of its own; its exit code, or -1 when it was killed.
    static int InChild(const std::function<int()> &body);

private:
    static void Reset();

    QTemporaryDir m_folder;
};

/// The number that the call raises, 0 when it raises nothing.
template <typename Call> qint32 Raised(Call call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
