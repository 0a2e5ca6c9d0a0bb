#include "platform/data/row_reader.h"

namespace data
{

bool RowReader::Load(qint64 autoID)
{
    if (m_loaded && m_autoID == autoID && m_generation == m_session.Generation())
        return true;
    m_session.BeginRead();
    if (!m_statement)
        m_statement =
            m_session.Prepare("SELECT Word, Pronunciation, WordPhrase, Description, Example, AutoID "
                              "FROM Dictionary WHERE AutoID = ?1");
    m_statement.Reset();
    m_statement.BindNumber(1, autoID);
    m_loaded = m_statement.Step();
    m_autoID = autoID;
    m_generation = m_session.Generation();
    return m_loaded;
}

QVariant RowReader::Value(Column column) const
{
    if (m_statement.IsNull(column))
        return {};
    // Cut to its size, the number of one row would be that of another.
    if (column == AutoID)
        return CheckedTo<qint32>(m_statement.Number(column));
    if (column == WordPhrase)
        return static_cast<int>(m_statement.Number(column));
    return FromUtf8(m_statement.Text(column));
}

QString FromUtf8(std::string_view bytes)
{
    // The toolkit takes the character for a mark of the encoding at the beginning; here it is one of the
    // text.
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    QString text;
    for (; bytes.starts_with(mark); bytes.remove_prefix(mark.size()))
        text += QChar(QChar::ByteOrderMark);
    return text + QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

} // namespace data
