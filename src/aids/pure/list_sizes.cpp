#include "aids/pure/list_sizes.h"

#include "platform/failure/runtime_error.h"
#include "platform/text/trim.h"

namespace
{

template <typename Number> Number NumberIn(const QString &field)
{
    bool isNumber = false;
    const qint64 value = text::Trim(field).toLongLong(&isNumber);
    if (isNumber)
        return CheckedTo<Number>(value);
    // Digits alone are a number all the same, of whatever length.
    const std::optional<QString> digits = FilteredText(field);
    throw RuntimeError(digits && !digits->isEmpty() ? RuntimeError::Overflow : RuntimeError::TypeMismatch);
}

qint16 ShortIn(const QString &field) { return NumberIn<qint16>(field); }

constexpr int kMostHeadwords = 300;
constexpr int kMostHits = 30000;
constexpr int kMostBookRows = 1000;

SizeFault HeadwordFault(const QString &message, SizeField focus)
{
    return {message, QStringLiteral("見出し語リスト件数設定エラー"), focus};
}

SizeFault EntryFault(const QString &message, SizeField focus)
{
    return {message, QStringLiteral("見出し語内容の表示件数設定エラー"), focus};
}

} // namespace

std::optional<SizeFault> FirstSizeFault(const SizeTexts &texts)
{
    if (ShortIn(texts.Text1) < ShortIn(texts.Combo1))
        return HeadwordFault(
            QStringLiteral("インクリメンタル検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」"
                           "と同じ、または大きい値を設定してください。"),
            SizeField::Text1);
    if (ShortIn(texts.Text4) < ShortIn(texts.Combo2))
        return HeadwordFault(QStringLiteral("条件検索時の「見出し語のリスト件数」は「見出し語内容の表示件数」"
                                            "と同じ、または大きい値を設定してください。"),
                             SizeField::Text4);
    if (ShortIn(texts.Text1) > kMostHeadwords)
        return HeadwordFault(
            QStringLiteral("インクリメンタル検索時の「見出し語のリスト件数」は最大300件です。"),
            SizeField::Text1);
    if (ShortIn(texts.Text4) > kMostHeadwords)
        return HeadwordFault(QStringLiteral("条件検索時の「見出し語のリスト件数」は最大300件です。"),
                             SizeField::Text4);
    if (ShortIn(texts.Combo1) > kMostEntries)
        return EntryFault(
            QStringLiteral("インクリメンタル検索時の「見出し語内容の表示件数」は最大30件です。"),
            SizeField::Combo1);
    if (NumberIn<qint32>(texts.Text2) > kMostHits)
        return HeadwordFault(QStringLiteral("条件検索時の「見出し語の最大リスト件数」は最大30000件です。"),
                             SizeField::Text2);
    if (ShortIn(texts.Combo2) > kMostEntries)
        return EntryFault(QStringLiteral("条件検索時の「見出し語内容の表示件数」は最大30件です。"),
                          SizeField::Combo2);
    if (ShortIn(texts.Text3) > kMostBookRows)
        return SizeFault{QStringLiteral("マイ ワードブックの「最大登録・表示数」は最大1000件です。"),
                         QStringLiteral("マイ ワードブックの登録・表示設定エラー"), SizeField::Text3};
    return std::nullopt;
}

ListSettings SizesOf(const SizeTexts &texts)
{
    ListSettings settings;
    settings.IncListCount = ShortIn(texts.Text1);
    settings.IncEntriesPerPage = ShortIn(texts.Combo1);
    settings.ListPageSize = ShortIn(texts.Text4);
    settings.MaxListCount = ShortIn(texts.Text2);
    settings.EntriesPerPage = ShortIn(texts.Combo2);
    settings.WordBookMax = ShortIn(texts.Text3);
    settings.SearchTarget = texts.target;
    return settings;
}

SizeTexts TextsOf(const ListSettings &settings)
{
    return {QString::number(settings.IncListCount),
            QString::number(settings.IncEntriesPerPage),
            QString::number(settings.ListPageSize),
            QString::number(settings.MaxListCount),
            QString::number(settings.EntriesPerPage),
            QString::number(settings.WordBookMax),
            settings.SearchTarget};
}

std::optional<QChar> FilteredKey(QChar typed)
{
    constexpr char16_t fullWidthZero = u'０', fullWidthNine = u'９';
    if (typed >= u'0' && typed <= u'9')
        return typed;
    if (typed >= fullWidthZero && typed <= fullWidthNine)
        return QChar(static_cast<char16_t>(typed.unicode() - fullWidthZero + u'0'));
    return std::nullopt;
}

std::optional<QString> FilteredText(const QString &text)
{
    QString digits;
    for (const QChar character : text.trimmed()) {
        const std::optional<QChar> digit = FilteredKey(character);
        if (!digit)
            return std::nullopt;
        digits += *digit;
    }
    return digits;
}
