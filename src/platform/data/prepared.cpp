#include "platform/data/prepared.h"

#include "platform/data/operation.h"

#include <sqlite3.h>
#include <utility>

namespace data
{

namespace
{

void Check(int code)
{
    if (code != SQLITE_OK)
        RaiseCode(code);
}

} // namespace

Prepared::Prepared(sqlite3 *database, std::string_view sql)
{
    Check(sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()), 0, &m_statement, nullptr));
}

Prepared::~Prepared() { sqlite3_finalize(m_statement); }

Prepared::Prepared(Prepared &&other) noexcept : m_statement(std::exchange(other.m_statement, nullptr)) {}

Prepared &Prepared::operator=(Prepared &&other) noexcept
{
    std::swap(m_statement, other.m_statement);
    return *this;
}

void Prepared::BindText(int parameter, std::string_view text)
{
    Check(sqlite3_bind_text64(m_statement, parameter, text.empty() ? "" : text.data(), text.size(),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Prepared::BindTextInPlace(int parameter, std::string_view text)
{
    Check(sqlite3_bind_text64(m_statement, parameter, text.empty() ? "" : text.data(), text.size(),
                              SQLITE_STATIC, SQLITE_UTF8));
}

void Prepared::BindNumber(int parameter, qint64 value)
{
    Check(sqlite3_bind_int64(m_statement, parameter, value));
}

void Prepared::BindNull(int parameter) { Check(sqlite3_bind_null(m_statement, parameter)); }

void Prepared::BindPointer(int parameter, void *pointer, const char *kind)
{
    Check(sqlite3_bind_pointer(m_statement, parameter, pointer, kind, nullptr));
}

void Prepared::BindBehindAllText(int parameter) { Check(sqlite3_bind_zeroblob(m_statement, parameter, 0)); }

bool Prepared::Step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    // A finished run must not keep its locks.
    sqlite3_reset(m_statement);
    if (code != SQLITE_DONE)
        RaiseCode(code);
    return false;
}

void Prepared::Reset() { sqlite3_reset(m_statement); }

std::string_view Prepared::Text(int column) const
{
    // The blob of a text is its bytes without the copy that a closing NUL would cost.
    const void *bytes = sqlite3_column_blob(m_statement, column);
    const int size = sqlite3_column_bytes(m_statement, column);
    return bytes == nullptr
               ? std::string_view()
               : std::string_view(static_cast<const char *>(bytes), static_cast<std::size_t>(size));
}

qint64 Prepared::Number(int column) const { return sqlite3_column_int64(m_statement, column); }

bool Prepared::IsNull(int column) const { return sqlite3_column_type(m_statement, column) == SQLITE_NULL; }

} // namespace data
