#include "presentation/pure/menu_table.h"

#include <QSet>
#include <gtest/gtest.h>

namespace
{

QChar Mnemonic(const QString &caption)
{
    const qsizetype mark = caption.indexOf(u'&');
    return mark < 0 ? QChar() : caption[mark + 1].toUpper();
}

} // namespace

TEST(MenuTable, BeginsWithAMenuAndNamesEachRowOnce)
{
    ASSERT_EQ(MenuTable().constFirst().kind, MenuRow::Kind::Menu);
    QSet<QString> names;
    for (const MenuRow &row : MenuTable()) {
        EXPECT_FALSE(names.contains(row.name)) << qPrintable(row.name);
        names.insert(row.name);
        EXPECT_EQ(row.caption.isEmpty(), row.kind == MenuRow::Kind::Separator) << qPrintable(row.name);
    }
}

TEST(MenuTable, NoKeyChoosesTwoEntriesOfAMenu)
{
    QSet<QChar> ofBar, ofMenu;
    for (const MenuRow &row : MenuTable()) {
        if (row.kind == MenuRow::Kind::Menu)
            ofMenu.clear();
        QSet<QChar> &taken = row.kind == MenuRow::Kind::Menu ? ofBar : ofMenu;
        const QChar key = Mnemonic(row.caption);
        EXPECT_FALSE(!key.isNull() && taken.contains(key)) << qPrintable(row.caption);
        taken.insert(key);
    }
}

TEST(MenuTable, SeparatorsStandBetweenEntries)
{
    const QList<MenuRow> &rows = MenuTable();
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (rows[i].kind != MenuRow::Kind::Separator)
            continue;
        ASSERT_GT(i, 0);
        ASSERT_LT(i + 1, rows.size());
        EXPECT_EQ(rows[i - 1].kind, MenuRow::Kind::Entry) << qPrintable(rows[i].name);
        EXPECT_EQ(rows[i + 1].kind, MenuRow::Kind::Entry) << qPrintable(rows[i].name);
    }
}
