#pragma once

#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/files/file_operations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A test with a folder of its own and nothing injected before and after it.
class TempHome : public testing::Test
{
protected:
    TempHome() { Reset(); }
    ~TempHome() override { Reset(); }

    /// Host path and drive path of a name in the folder.
    QString Host(const QString &name) const { return m_folder.filePath(name); }
    QString Drive(const QString &name) const { return files::DrivePath(Host(name)); }

    void Put(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(Host(name)).path());
        QFile file(Host(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    /// The content of the file; "(none)" where there is none.
    QByteArray Get(const QString &name) const
    {
        QFile file(Host(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    /// Every name in a folder, hidden ones too, sorted.
    QStringList Names(const QString &folder = {}) const
    {
        return QDir(Host(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    static void Reset()
    {
        faults::Clear();
        files::ClearReadOnlyMarks();
        files::SetFreeBytes(-1);
    }

    QTemporaryDir m_folder;
};

/// The number that the call raises, 0 when it raises nothing.
template <typename Call> qint32 Raised(Call call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
