#include "presentation/pure/help_book.h"

#include "platform/text/trim.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>

namespace
{

/// The text between two marks, from a place on; null where there is none.
QString Between(const QString &text, const QString &begin, const QString &end, qsizetype from = 0)
{
    const qsizetype first = text.indexOf(begin, from);
    if (first < 0)
        return {};
    const qsizetype inner = first + begin.size();
    const qsizetype last = text.indexOf(end, inner);
    return last < 0 ? QString() : text.sliced(inner, last - inner);
}

QString AttributeOf(const QString &tag, const QString &name)
{
    return TextOfMarkup(Between(tag, u' ' + name + QStringLiteral("=\""), QStringLiteral("\"")));
}

/// "word|reading; word": a word without a reading is read as it is written.
QList<HelpKeyword> KeywordsOf(const QString &list)
{
    QList<HelpKeyword> keywords;
    const QStringList entries = list.split(u';', Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QString word = text::Trim(entry.section(u'|', 0, 0));
        const QString reading = text::Trim(entry.section(u'|', 1));
        if (!word.isEmpty())
            keywords.append({word, reading.isEmpty() ? word : reading});
    }
    return keywords;
}

/// A topic of its tag and what stands in it; one without an id or a heading is none.
HelpTopic TopicOf(const QString &tag, const QString &html)
{
    HelpTopic topic;
    topic.id = AttributeOf(tag, QStringLiteral("id"));
    const QString chapter = Between(html, QStringLiteral("<h1>"), QStringLiteral("</h1>"));
    const QString heading = Between(html, QStringLiteral("<h2>"), QStringLiteral("</h2>"));
    topic.isChapter = !chapter.isEmpty();
    topic.title = text::Trim(TextOfMarkup(topic.isChapter ? chapter : heading));
    topic.keywords = KeywordsOf(AttributeOf(tag, QStringLiteral("data-keywords")));
    topic.html = html;
    topic.searchText = text::Fold(TextOfMarkup(html));
    return topic;
}

/// Takes all topics; whether each of them was one, and none came twice.
bool TakeTopics(const QString &page, HelpBook &book)
{
    const QString opening = QStringLiteral("<section "), closing = QStringLiteral("</section>");
    bool isWhole = true;
    for (qsizetype at = page.indexOf(opening); at >= 0; at = page.indexOf(opening, at + 1)) {
        const qsizetype tagEnd = page.indexOf(u'>', at);
        const qsizetype end = page.indexOf(closing, at);
        const qsizetype next = page.indexOf(opening, at + 1);
        const bool isClosed = tagEnd >= 0 && end > tagEnd && (next < 0 || end < next);
        const HelpTopic topic =
            isClosed ? TopicOf(page.sliced(at, tagEnd - at), page.sliced(tagEnd + 1, end - tagEnd - 1))
                     : HelpTopic();
        if (topic.id.isEmpty() || topic.title.isEmpty() || book.Find(topic.id) >= 0)
            isWhole = false;
        else
            book.topics.append(topic);
    }
    return isWhole && !book.topics.isEmpty();
}

bool EndsBlock(const QString &tag)
{
    static constexpr std::array blocks{u"br", u"p",  u"h1", u"h2", u"h3", u"li", u"td",
                                       u"th", u"tr", u"ul", u"ol", u"dt", u"dd", u"div"};
    qsizetype length = 0;
    while (length < tag.size() && tag[length].isLetterOrNumber())
        ++length;
    const QStringView name = QStringView(tag).first(length);
    return std::any_of(blocks.begin(), blocks.end(), [name](const char16_t *block) { return name == block; });
}

/// The character that a reference such as "&amp;" or "&#12354;" stands for; null for none.
QString ReferredTo(const QString &name)
{
    static const std::array<std::pair<QString, QString>, 5> named{
        {{QStringLiteral("amp"), QStringLiteral("&")},
         {QStringLiteral("lt"), QStringLiteral("<")},
         {QStringLiteral("gt"), QStringLiteral(">")},
         {QStringLiteral("quot"), QStringLiteral("\"")},
         {QStringLiteral("nbsp"), QStringLiteral(" ")}}};
    for (const auto &[known, character] : named)
        if (name == known)
            return character;
    constexpr int hexadecimal = 16, decimal = 10;
    constexpr uint lastCodePoint = 0x10FFFF;
    const bool isHex = name.startsWith(QStringLiteral("#x"));
    bool isNumber = false;
    const uint code = name.mid(isHex ? 2 : 1).toUInt(&isNumber, isHex ? hexadecimal : decimal);
    if (!name.startsWith(u'#') || !isNumber || code == 0 || code > lastCodePoint)
        return {};
    const char32_t character = code;
    return QString::fromUcs4(&character, 1);
}

QString WithCharacters(const QString &markup)
{
    constexpr qsizetype longestName = 10;
    QString text;
    for (qsizetype at = 0; at < markup.size(); ++at) {
        const qsizetype end = markup[at] == u'&' ? markup.indexOf(u';', at) : -1;
        const bool isReference = end > at && end - at <= longestName;
        const QString character = isReference ? ReferredTo(markup.sliced(at + 1, end - at - 1)) : QString();
        if (character.isNull()) {
            text += markup[at];
        } else {
            text += character;
            at = end;
        }
    }
    return text;
}

/// The links to the topics of a chapter.
QString ChapterLinks(const HelpBook &book, qsizetype chapter)
{
    QString links;
    for (qsizetype i = chapter + 1; i < book.topics.size() && !book.topics[i].isChapter; ++i)
        links += QStringLiteral("<li><a href=\"#%1\">%2</a></li>")
                     .arg(book.topics[i].id, book.topics[i].title.toHtmlEscaped());
    return links.isEmpty() ? QString() : QStringLiteral("<ul>") + links + QStringLiteral("</ul>");
}

} // namespace

qsizetype HelpBook::Find(const QString &id) const
{
    for (qsizetype i = 0; i < topics.size(); ++i)
        if (topics[i].id == id)
            return i;
    return -1;
}

HelpBook ReadHelpBook(const QByteArray &file)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString page = decoder(file);
    HelpBook book;
    book.title =
        text::Trim(TextOfMarkup(Between(page, QStringLiteral("<title>"), QStringLiteral("</title>"))));
    book.style = Between(page, QStringLiteral("<style>"), QStringLiteral("</style>"));
    const bool topicsAreWhole = TakeTopics(page, book);
    book.isWhole = topicsAreWhole && !decoder.hasError() &&
                   QStringView(page).trimmed().endsWith(QStringLiteral("</html>"));
    return book;
}

QString TopicPage(const HelpBook &book, qsizetype topic)
{
    const HelpTopic &shown = book.topics.at(topic);
    return QStringLiteral("<html><head><style>%1</style></head><body>").arg(book.style) + shown.html +
           (shown.isChapter ? ChapterLinks(book, topic) : QString()) + QStringLiteral("</body></html>");
}

QString TextOfMarkup(const QString &markup)
{
    QString text;
    qsizetype at = 0;
    while (at < markup.size()) {
        const qsizetype tag = markup.indexOf(u'<', at);
        const qsizetype end = tag < 0 ? -1 : markup.indexOf(u'>', tag);
        if (end < 0)
            break;
        text += markup.sliced(at, tag - at).replace(u'\n', QString());
        const bool isClosing = markup[tag + 1] == u'/';
        const QString name = markup.sliced(tag + (isClosing ? 2 : 1), end - tag - (isClosing ? 2 : 1));
        if ((isClosing || name.startsWith(QStringLiteral("br"))) && EndsBlock(name))
            text += u'\n';
        at = end + 1;
    }
    return WithCharacters(text + markup.mid(at).replace(u'\n', QString()));
}
