#pragma once

#include <QtGlobal>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace data
{

/// A prepared statement of SQLite. Every call raises what the result code stands for.
class Prepared
{
public:
    Prepared() = default;
    Prepared(sqlite3 *database, std::string_view sql);
    ~Prepared();
    Prepared(Prepared &&other) noexcept;
    Prepared &operator=(Prepared &&other) noexcept;
    Prepared(const Prepared &) = delete;
    Prepared &operator=(const Prepared &) = delete;

    explicit operator bool() const { return m_statement != nullptr; }

    /// Parameters, from 1. BindText copies; the bytes of BindTextInPlace must stay until Reset.
    void BindText(int parameter, std::string_view text);
    void BindTextInPlace(int parameter, std::string_view text);
    void BindNumber(int parameter, qint64 value);
    void BindNull(int parameter);
    /// What a function of SQLite takes under the kind's name; it must outlive the statement's runs.
    void BindPointer(int parameter, void *pointer, const char *kind);
    /// A value that sorts behind every text.
    void BindBehindAllText(int parameter);

    /// Goes to the next row; false behind the last.
    bool Step();
    /// Ends the run, so that values can be bound anew. Never raises.
    void Reset();

    /// Columns of the current row, from 0. The text stays until the next Step or Reset.
    std::string_view Text(int column) const;
    qint64 Number(int column) const;
    bool IsNull(int column) const;

private:
    sqlite3_stmt *m_statement = nullptr;
};

} // namespace data
