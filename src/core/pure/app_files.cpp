#include "core/pure/app_files.h"

#include "platform/files/application_folder.h"
#include "platform/text/shift_jis.h"

QString AppFilePath(const QString &name)
{
    QString path = files::ApplicationFolder();
    if (!path.endsWith(u'\\'))
        path += u'\\';
    return path + name;
}

QString CatalogueFileName() { return QStringLiteral("lexicons.dat"); }

QString ResultStorePath() { return AppFilePath(QStringLiteral("ListData.dat")); }

QString HelpFilePath() { return AppFilePath(QStringLiteral("Help.HLP")); }

QString WindowsFolderRoot() { return files::ApplicationFolder(); }

qsizetype AnsiByteLen(const QString &text) { return text::EncodeRecord(text).size(); }
