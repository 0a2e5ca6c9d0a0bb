#include "presentation/pure/entry_page.h"

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

QString StyleColorName(qint32 color)
{
    struct Named {
        qint32 color;
        const char16_t *name;
    };
    constexpr Named colors[] = {
        {0x000080, u"Maroon"}, {0x0000FF, u"Red"},     {0x008000, u"Green"}, {0x008080, u"Olive"},
        {0x00FF00, u"Lime"},   {0x00FFFF, u"Yellow"},  {0x800000, u"Navy"},  {0xFFFFFF, u"White"},
        {0x800080, u"Purple"}, {0x808000, u"Teal"},    {0x808080, u"Gray"},  {0xC0C0C0, u"Silver"},
        {0xFF0000, u"Blue"},   {0xFF00FF, u"Fuchsia"}, {0xFFFF00, u"Aqua"},
    };
    for (const Named &named : colors)
        if (named.color == color)
            return QString::fromUtf16(named.name);
    return QStringLiteral("Black");
}

PageFonts DefaultPageFonts()
{
    PageFonts fonts;
    for (int style = 0; style < kPageStyles; ++style)
        fonts[static_cast<std::size_t>(style)] = DefaultFontRow(FontStyle1 + style);
    return fonts;
}

QStringList PageHeader(const PageFonts &fonts)
{
    QStringList lines{
        QStringLiteral("<HTML><html lang=\"ja\"><HEAD><META HTTP-EQUIV=\"Content-Type\" "
                       "CONTENT=\"text/html;CHARSET=x-sjis\"><TITLE></TITLE><STYLE TYPE=\"text/css\">")};
    int number = 0;
    for (const FontRow &font : fonts)
        lines.append(
            QStringLiteral("#sty%1 {line-height: 1.5; text-decoration: %2;font-family: \"%3\"; "
                           "font-size: %4pt;color: %5;font-weight: %6;font-style: %7;}")
                .arg(QString::number(++number),
                     font.underline == FontRow::kYes ? QStringLiteral("Underline") : QStringLiteral("none"),
                     font.name, QString::number(font.size), StyleColorName(font.color),
                     font.bold == FontRow::kYes ? QStringLiteral("bold") : QStringLiteral("normal"),
                     font.italic == FontRow::kYes ? QStringLiteral("Italic") : QStringLiteral("normal")));
    lines.append(QStringLiteral("</STYLE></HEAD><BODY oncontextmenu=\"return false\">"));
    return lines;
}
