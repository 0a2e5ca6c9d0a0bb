// Any text is a statement or raises the one failure; a literal survives being quoted.

#include "platform/data/statement.h"
#include "platform/failure/runtime_error.h"
#include "require.h"

namespace
{

void TestLiteral(const QString &text)
{
    QString quoted = text;
    quoted.replace(u'\'', QStringLiteral("''"));
    const data::Statement statement =
        data::ParseStatement(QStringLiteral("SELECT * FROM Dictionary WHERE Word Like '%1'").arg(quoted));
    Require(statement.conditions.size() == 1 && statement.conditions.first().text == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    TestLiteral(text);
    try {
        const data::Statement statement = data::ParseStatement(text);
        Require(statement.top >= -1);
        for (const data::Condition &condition : statement.conditions) {
            const bool isNumber = condition.column == data::WordPhrase || condition.column == data::AutoID;
            Require(!isNumber || condition.op == data::Condition::Operator::Equals);
            Require(condition.number >= 0);
        }
    } catch (const RuntimeError &error) {
        Require(error.number() == RuntimeError::InvalidStatement);
    }
    return 0;
}
