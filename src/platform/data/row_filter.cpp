#include "platform/data/row_filter.h"

#include "platform/data/operation.h"
#include "platform/data/prepared.h"
#include "platform/data/schema.h"
#include "platform/text/fold.h"

#include <new>
#include <sqlite3.h>

namespace data
{

namespace
{

/// The kind of pointer that the function takes.
constexpr char kPointerType[] = "data::RowFilter";

std::string_view TextOf(sqlite3_value *value)
{
    // The blob of a text is its bytes as they lie in the page.
    const void *bytes = sqlite3_value_blob(value);
    if (bytes == nullptr)
        return {};
    return {static_cast<const char *>(bytes), static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

bool IsNull(sqlite3_value *value) { return sqlite3_value_type(value) == SQLITE_NULL; }

bool Passes(const RowTest &test, sqlite3_value *value)
{
    if (test.IsNumeric())
        return !IsNull(value) && test.Passes(qint64(sqlite3_value_int64(value)));
    const std::string_view text = TextOf(value);
    // Null gives no bytes, as an empty text does.
    return (text.data() != nullptr || !IsNull(value)) && test.Passes(text);
}

} // namespace

/// What SQLite calls.
struct RowFilter::Function {
    static void Call(sqlite3_context *context, int /*count*/, sqlite3_value **values)
    {
        // SQLite keeps the filter by the call, so that the pointer's kind is looked at once a run.
        auto *filter = static_cast<RowFilter *>(sqlite3_get_auxdata(context, 0));
        if (filter == nullptr) {
            filter = static_cast<RowFilter *>(sqlite3_value_pointer(values[0], kPointerType));
            if (filter == nullptr)
                return;
            sqlite3_set_auxdata(context, 0, filter, nullptr);
        }
        try {
            sqlite3_result_int(context, filter->m_hasLeftRange || Answer(*filter, values + 1));
        } catch (const std::bad_alloc &) {
            sqlite3_result_error_nomem(context);
        }
    }

    static bool Answer(RowFilter &filter, sqlite3_value **columns)
    {
        for (std::size_t i = 0; i < filter.m_tests.size(); ++i) {
            if (data::Passes(filter.m_tests[i], columns[i]))
                continue;
            // The headword of the range comes first: what passes it lies within.
            if (i == 0 && filter.m_range != nullptr)
                filter.m_hasLeftRange = !filter.IsInRange(TextOf(columns[0]));
            return filter.m_hasLeftRange;
        }
        return true;
    }
};

RowFilter::RowFilter(RowTests tests, int range) : m_tests(std::move(tests))
{
    if (range < 0)
        return;
    std::swap(m_tests.front(), m_tests.at(static_cast<std::size_t>(range)));
    m_range = &m_tests.front();
    m_rangeStart = QString::fromStdU32String(m_range->Prefix()).toStdString();
}

void RowFilter::Register(sqlite3 *database)
{
    const int code = sqlite3_create_function_v2(database, "PASSES", -1, SQLITE_UTF8 | SQLITE_DIRECTONLY,
                                                nullptr, &Function::Call, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        RaiseCode(code);
}

std::string RowFilter::Call(int parameter) const
{
    std::string call = "PASSES(?" + std::to_string(parameter);
    for (const RowTest &test : m_tests)
        call.append(", ").append(ColumnName(test.column()).data());
    return call.append(")");
}

void RowFilter::BindTo(Prepared &statement, int parameter)
{
    statement.BindPointer(parameter, this, kPointerType);
}

bool RowFilter::IsInRange(std::string_view word) const
{
    thread_local std::u32string folded;
    text::FoldUtf8(word, folded);
    return m_range->IsExact() ? folded == m_range->Prefix() : folded.starts_with(m_range->Prefix());
}

} // namespace data
