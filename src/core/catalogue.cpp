#include "core/catalogue.h"

#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/files/fixed_record_file.h"
#include "presentation/frmFind.h"

namespace
{

void SetCurrentDictionary(frmFind &window, const Lexicon &lexicon)
{
    window.Combo1->SetText(lexicon.DicName);
    Shared.CurrentDicName = lexicon.DicName;
    Shared.CurrentDicPath = lexicon.DicPath;
}

} // namespace

std::int16_t LoadLexicons(const QString &fileName)
{
    frmFind &window = *MainWindow();
    files::FixedRecordFile file(AppFilePath(fileName), kLexiconRecordLength);
    const auto count = CheckedTo<std::int16_t>(file.Count());
    QList<Lexicon> lexicons;
    for (int i = 1; i <= count; ++i)
        lexicons.append(DecodeLexicon(file.Read(i)));
    file.Close();

    window.Combo1->setEnabled(count > 0);
    window.txtFind->setEnabled(count > 0);
    if (count <= 0) {
        SetCurrentDictionary(window, Lexicon{});
        return 0;
    }
    window.Combo1->Clear();
    for (const Lexicon &lexicon : lexicons)
        window.Combo1->AddItem(lexicon.DicName);
    const auto selected = std::find_if(lexicons.cbegin(), lexicons.cend(),
                                       [](const Lexicon &lexicon) { return lexicon.IsSelected == -1; });
    SetCurrentDictionary(window, selected == lexicons.cend() ? lexicons.first() : *selected);
    lexicons.append(Lexicon{});
    Shared.Lexicons = lexicons;
    return -1;
}

std::int16_t SaveLexicons(const QString &fileName)
{
    QByteArray content;
    const QList<Lexicon> lexicons = Shared.Lexicons.value_or(QList<Lexicon>());
    for (qsizetype slot = 0; slot + 1 < lexicons.size(); ++slot)
        if (lexicons.at(slot).IsDeleted == 0)
            content += EncodeLexicon(lexicons.at(slot));
    files::Replace(AppFilePath(fileName), content);
    return content.isEmpty() ? std::int16_t{0} : std::int16_t{-1};
}

QString LexiconsAllocated() { return Shared.Lexicons ? QStringLiteral("-1") : QStringLiteral("0"); }
