#include "conversion/pure/format_table.h"

QStringList SourceFormatNames()
{
    return {
        QStringLiteral("英辞郎／和英辞郎"), QStringLiteral("１行テキスト"),
        QStringLiteral("ＰＤＩＣテキスト"), QStringLiteral("ＣＳＶ（カンマ区切り）"),
        QStringLiteral("MS Glossary"),
    };
}

QStringList SourceFormatDescriptions()
{
    return {
        QStringLiteral("見出し語と他の項目が主にコロンで区切られたデータです。"),
        QStringLiteral("見出し語と他の項目が「///」で区切られたデータです。"),
        QStringLiteral("見出し語と他の項目が改行コードで区切られたデータです。"),
        QStringLiteral("各データ項目がカンマで区切られたデータです。"),
        QStringLiteral("ＭＳ社製品中に含まれる文字列を集めた対訳データです。"),
    };
}
