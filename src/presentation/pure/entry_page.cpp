#include "presentation/pure/entry_page.h"

#include "core/pure/settings_formats.h"
#include "platform/text/trim.h"

QString PronunciationText(const QString &pronunciation)
{
    return pronunciation.isEmpty() ? QString() : QStringLiteral(" [") + pronunciation + u']';
}

QString ExampleLabel(const QString &example)
{
    return example.isEmpty() ? QString() : QStringLiteral("【用例】 ");
}

QString PlainEntryLine(const EntryFields &record)
{
    const QString example = text::Trim(record.example);
    return QStringLiteral("<SPAN ID=sty1>") + text::Trim(record.word) +
           QStringLiteral("</SPAN><SPAN ID=sty2>") + PronunciationText(text::Trim(record.pronunciation)) +
           QStringLiteral("</SPAN><table width=\"97%\" border=\"0%\"><tr><td width=\"2%\"></td>"
                          "<td width=\"98%\"><SPAN ID=sty3>") +
           text::Trim(record.description) +
           QStringLiteral("</SPAN></td> </tr> <tr> <td></td> <td><SPAN ID=sty4>") + ExampleLabel(example) +
           example + QStringLiteral("</SPAN></td></tr></table>");
}

QString PageEnd() { return QStringLiteral("</BODY></HTML>"); }

QStringList MessagePageLines(const QString &message)
{
    return {QStringLiteral("<html lang=\"ja\"><head><meta http-equiv=\"Content-Type\" "
                           "content=\"text/html;CHARSET=x-sjis\"><title></title></head>"
                           "<BODY oncontextmenu=\"return false\"<p>"),
            QStringLiteral("<FONT COLOR=\"#0000FF\">") + message +
                QStringLiteral("</FONT></p></body></html>")};
}

QStringList DefaultPageHeader()
{
    struct Rule {
        const char16_t *decoration, *color, *weight, *style;
    };
    constexpr Rule rules[] = {
        {u"none", u"Blue", u"bold", u"normal"},    {u"none", u"Black", u"normal", u"normal"},
        {u"none", u"Black", u"normal", u"normal"}, {u"none", u"Black", u"normal", u"Italic"},
        {u"none", u"Red", u"bold", u"normal"},     {u"Underline", u"Red", u"bold", u"normal"},
    };
    QStringList lines{
        QStringLiteral("<HTML><html lang=\"ja\"><HEAD><META HTTP-EQUIV=\"Content-Type\" "
                       "CONTENT=\"text/html;CHARSET=x-sjis\"><TITLE></TITLE><STYLE TYPE=\"text/css\">")};
    int number = 0;
    for (const Rule &rule : rules)
        lines.append(QStringLiteral("#sty%1 {line-height: 1.5; text-decoration: %2;font-family: \"%3\"; "
                                    "font-size: 9pt;color: %4;font-weight: %5;font-style: %6;}")
                         .arg(QString::number(++number), QString::fromUtf16(rule.decoration),
                              DefaultFontName(), QString::fromUtf16(rule.color),
                              QString::fromUtf16(rule.weight), QString::fromUtf16(rule.style)));
    lines.append(QStringLiteral("</STYLE></HEAD><BODY oncontextmenu=\"return false\">"));
    return lines;
}
