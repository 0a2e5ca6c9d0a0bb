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

TEST(MenuTable, StandsInTheOrderOfTheBar)
{
    const QStringList expected =
        QStringLiteral(
            "mnufile mnuFileCreate mnuOpen mnuCnv mnuCompress mnufilesep1 mnuPageSettings mnuPrint "
            "mnuPrintView "
            "mnufilesep20 mnuExit "
            "mnuEdit mnuCopy mnuSelectAll mnufilesep2 mnuFind "
            "mnuView mnuGoBack mnuGoForward mnuGoHome mnuCancel mnuReflesh mnufilesep3 mnuHideListBox "
            "mnuSearch mnuIncSrch mnufilesep4 mnuPreSrch mnuMidSrch mnuPostSrch mnufilesep5 mnuWildCard "
            "mnuWildCardBuilder mnufilesep6 mnuAddSearchCondition mnufilesep7 mnuTxtInMeaning "
            "mnuTxtInExample "
            "mnufilesep8 mnuHistory mnufilesep9 mnuSrchWebSite "
            "mntKindOfSrch mnuSrchFromAll mnuSrchFromWord mnuSrchFromPhrase "
            "mnuTool mnuDicAdd mnufilesep10 mnuColorSel mnufilesep11 mnuListSettings mnufilesep12 "
            "mnuSpeakingSetting "
            "mnuHelp mnuTopicSearch mnufilesep13 mnuAbout "
            "mPopup mnuSpeakKeyWord mnuSpeakSelectedArea mCancel")
            .split(u' ');
    const QStringList menus =
        QStringLiteral("mnufile mnuEdit mnuView mnuSearch mntKindOfSrch mnuTool mnuHelp mPopup").split(u' ');
    QStringList names, menuNames;
    for (const MenuRow &row : MenuTable()) {
        names.append(row.name);
        if (row.kind == MenuRow::Kind::Menu)
            menuNames.append(row.name);
    }
    EXPECT_EQ(names, expected);
    EXPECT_EQ(menuNames, menus);
}
