#include "platform/data/statement.h"

#include "platform/failure/runtime_error.h"

#include <array>

namespace data
{

namespace
{

constexpr std::array<QStringView, ColumnCount> kColumnNames = {
    u"Word", u"Pronunciation", u"WordPhrase", u"Description", u"Example", u"AutoID"};

[[noreturn]] void RaiseInvalid() { throw RuntimeError(RuntimeError::InvalidStatement); }

bool IsBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; }
bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool IsWordCharacter(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || IsDigit(c);
}
bool IsNumber(Column column) { return column == WordPhrase || column == AutoID; }

/// Takes a statement apart from front to back.
class Parser
{
public:
    explicit Parser(QStringView text) : m_rest(text) {}

    Statement Parse()
    {
        Statement statement;
        Expect(u"SELECT");
        if (Take(u"TOP"))
            statement.top = Number();
        Expect(u'*');
        Expect(u"FROM");
        Expect(u"Dictionary");
        if (Take(u"WHERE")) {
            do
                statement.conditions.append(ParseCondition());
            while (Take(u"AND"));
        }
        if (Take(u"ORDER"))
            statement.order = ParseOrder();
        SkipBlanks();
        if (!m_rest.isEmpty())
            RaiseInvalid();
        return statement;
    }

private:
    Condition ParseCondition()
    {
        Condition condition;
        const int column = ColumnNamed(Word());
        if (column < 0)
            RaiseInvalid();
        condition.column = static_cast<Column>(column);
        if (IsNumber(condition.column)) {
            Expect(u'=');
            condition.number = Number();
            return condition;
        }
        if (Take(u"Like"))
            condition.op = Condition::Operator::Like;
        else
            Expect(u'=');
        condition.text = Literal();
        return condition;
    }

    Statement::Order ParseOrder()
    {
        Expect(u"BY");
        Expect(u"Word");
        Take(u"ASC");
        if (Take(u',')) {
            Expect(u"AutoID");
            Take(u"ASC");
        }
        return Statement::Order::Word;
    }

    void SkipBlanks()
    {
        while (!m_rest.isEmpty() && IsBlank(m_rest.front()))
            m_rest = m_rest.sliced(1);
    }

    /// The characters of letters and digits that come next; empty where there are none.
    QStringView PeekWord()
    {
        SkipBlanks();
        qsizetype length = 0;
        while (length < m_rest.size() && IsWordCharacter(m_rest[length]))
            ++length;
        return m_rest.first(length);
    }

    QStringView Word()
    {
        const QStringView word = PeekWord();
        m_rest = m_rest.sliced(word.size());
        return word;
    }

    bool Take(QStringView keyword)
    {
        const QStringView word = PeekWord();
        if (word.compare(keyword, Qt::CaseInsensitive) != 0)
            return false;
        m_rest = m_rest.sliced(word.size());
        return true;
    }

    bool Take(char16_t sign)
    {
        SkipBlanks();
        if (!m_rest.startsWith(QChar(sign)))
            return false;
        m_rest = m_rest.sliced(1);
        return true;
    }

    template <typename Expected> void Expect(Expected expected)
    {
        if (!Take(expected))
            RaiseInvalid();
    }

    int Number()
    {
        const QStringView word = Word();
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        if (!isNumber || !IsDigit(word.front()))
            RaiseInvalid();
        return number;
    }

    QString Literal()
    {
        Expect(u'\'');
        QString literal;
        for (;;) {
            const qsizetype quote = m_rest.indexOf(u'\'');
            if (quote < 0)
                RaiseInvalid();
            literal.append(m_rest.first(quote));
            m_rest = m_rest.sliced(quote + 1);
            if (!m_rest.startsWith(u'\''))
                return literal;
            literal.append(u'\'');
            m_rest = m_rest.sliced(1);
        }
    }

    QStringView m_rest;
};

} // namespace

int ColumnNamed(QStringView name)
{
    for (size_t i = 0; i < kColumnNames.size(); ++i)
        if (name.compare(kColumnNames[i], Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

Statement ParseStatement(QStringView text) { return Parser(text).Parse(); }

} // namespace data
