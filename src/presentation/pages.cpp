#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/files/file_operations.h"
#include "platform/files/line_file.h"
#include "platform/text/shift_jis.h"
#include "presentation/frmFind.h"
#include "presentation/page_file.h"
#include "presentation/pure/entry_page.h"

QString PagePath() { return AppFilePath(QStringLiteral("home.html")); }

QString StylePath() { return AppFilePath(QStringLiteral("sscDefi.dat")); }

void WritePageHeader()
{
    files::LineWriter page(PagePath(), files::LineWriter::Mode::Output);
    // The last line is the spare one.
    for (qsizetype i = 0; i + 1 < Shared.HtmlHeaderLines.size(); ++i)
        page.WriteLine(text::EncodePage(Shared.HtmlHeaderLines[i]));
    page.Close();
}

EntryFields FieldsOfRow(ADODB::Recordset &rows)
{
    const ADODB::Fields fields = rows.Fields();
    return {fields.Item(QStringLiteral("Word")).Text(), fields.Item(QStringLiteral("Pronunciation")).Text(),
            fields.Item(QStringLiteral("Description")).Text(), fields.Item(QStringLiteral("Example")).Text()};
}

EntryPage::EntryPage() : m_file(PagePath(), files::LineWriter::Mode::Append) {}

void EntryPage::WriteLine(const QString &line) { m_file.WriteLine(text::EncodePage(line)); }

void EntryPage::Finish()
{
    WriteLine(PageEnd());
    m_file.Close();
}

void frmFind::WriteMessagePage(const QString &message)
{
    files::LineWriter page(PagePath(), files::LineWriter::Mode::Output);
    for (const QString &line : MessagePageLines(message))
        page.WriteLine(text::EncodePage(line));
    page.Close();
}

void frmFind::NavigateHome() { WebBrowser1->Navigate(PagePath()); }

void frmFind::ShowBlankPage()
{
    WriteMessagePage(QString());
    NavigateHome();
}

void WritePageStyle(const PageFonts &fonts)
{
    QByteArray content;
    for (const QString &line : PageHeader(fonts))
        content += text::EncodePage(line) + "\r\n";
    files::Replace(StylePath(), content);
}

void frmFind::CreateHTMLHeader() { WritePageStyle(DefaultPageFonts()); }
