#include "platform/failure/runtime_error.h"

#include <array>

namespace
{

struct Description {
    qint32 number;
    const char16_t *text;
};

constexpr std::array kDescriptions{
    Description{RuntimeError::InvalidCall, u"プロシージャの呼び出し、または引数が不正です。"},
    Description{RuntimeError::Overflow, u"オーバーフローしました。"},
    Description{7, u"メモリが不足しています。"},
    Description{RuntimeError::SubscriptOutOfRange, u"インデックスが有効範囲にありません。"},
    Description{RuntimeError::DivisionByZero, u"0 で除算しました。"},
    Description{RuntimeError::TypeMismatch, u"型が一致しません。"},
    Description{51, u"内部エラーです。"},
    Description{RuntimeError::BadFileName, u"ファイル名または番号が不正です。"},
    Description{RuntimeError::FileNotFound, u"ファイルが見つかりません。"},
    Description{RuntimeError::DeviceIoError, u"デバイス I/O エラーです。"},
    Description{RuntimeError::FileExists, u"既に同名のファイルが存在しています。"},
    Description{RuntimeError::DiskFull, u"ディスクの空き容量が不足しています。"},
    Description{RuntimeError::InputPastEnd, u"ファイルにこれ以上データがありません。"},
    Description{RuntimeError::PermissionDenied, u"書き込みできません。"},
    Description{RuntimeError::PathNotFound, u"パスが見つかりません。"},
    Description{RuntimeError::ObjectNotSet, u"オブジェクト変数が設定されていません。"},
    Description{RuntimeError::InvalidFileFormat, u"ファイル形式が正しくありません。"},
    Description{RuntimeError::CannotOpenDatabase,
                u"データベースを開けません。ファイルがないか、使用中か、辞書データベースではありません。"},
    Description{RuntimeError::InvalidStatement, u"検索条件の書き方が正しくありません。"},
    Description{RuntimeError::ProviderError, u"フィールドの値が正しくないか、長すぎます。"},
    Description{RuntimeError::NoCurrentRow, u"現在のレコードがありません。"},
    Description{RuntimeError::ItemNotFound, u"指定された名前の項目が見つかりません。"},
    Description{RuntimeError::ObjectClosed, u"オブジェクトが閉じているため、この操作はできません。"},
    Description{RuntimeError::ObjectOpen, u"オブジェクトが開いているため、この操作はできません。"},
};

} // namespace

RuntimeError::RuntimeError(qint32 number, QString source)
    : RuntimeError(number, std::move(source), descriptionOf(number))
{
}

RuntimeError::RuntimeError(qint32 number, QString source, QString description)
    : m_number(number), m_source(std::move(source)), m_description(std::move(description)),
      m_what(QStringLiteral("%1 %2: %3").arg(m_number).arg(m_source, m_description).toUtf8())
{
}

QString RuntimeError::defaultSource() { return QStringLiteral("Wordmere"); }

QString RuntimeError::descriptionOf(qint32 number)
{
    for (const Description &entry : kDescriptions)
        if (entry.number == number)
            return QString::fromUtf16(entry.text);
    return QStringLiteral("アプリケーション定義またはオブジェクト定義のエラーです。");
}
