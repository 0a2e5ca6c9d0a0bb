#pragma once

#include "platform/controls/form.h"

#include <cstdint>
#include <memory>

struct CompactionMessage;
namespace JRO
{
class JetEngine;
}
namespace Ui
{
class frmDBCompress;
}

/// The dialog that compacts a dictionary file, with or without a backup of the old one.
class frmDBCompress : public controls::Form
{
    Q_OBJECT
    Q_PROPERTY(int IsOptimizing READ IsOptimizing)
public:
    frmDBCompress();
    ~frmDBCompress() override;

    /// 1 from just before the compaction until the file has been replaced, else 0.
    int IsOptimizing() const { return m_isOptimizing; }

    void Combo1_Click();
    void Combo1_KeyPress(int character, bool *swallow);
    void Check1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    enum DialogLayout { NormalLayout = 1, ProgressLayout = 2 };

    void ConnectHandlers();
    void SetDialogLayout(DialogLayout mode);
    void PlaceControls(bool isWorking);
    void SetBackupText(const QString &path);
    void ShowBackupEnabled(bool enabled);
    /// Looks at the two paths, tells what is wrong with them and may rewrite the backup's, in its box too.
    /// 1 to stop. A failure is told; but for that of a bad drive the work goes on.
    std::uint8_t CheckOptimizePaths(const QString &dbPath, QString &backupPath);
    std::uint8_t CheckPaths(const QString &dbPath, QString &backupPath);
    std::uint8_t CheckExtension(QString &backupPath);
    bool IsWithoutBackup() const;
    /// Steps of the start: false when the user or a check stops it.
    bool MayStart(const QString &dbPath, QString &backupPath, qint64 &oldLength);
    /// Writes the compact file at `tempPath` and puts it in the place of the old one.
    void Compact(const QString &dbPath, const QString &backupPath, const QString &tempPath);
    void ReplaceDictionary(const JRO::JetEngine &engine, const QString &dbPath, const QString &backupPath,
                           const QString &tempPath);

    std::unique_ptr<Ui::frmDBCompress> m_ui;
    QSize m_loadedSize;
    std::uint8_t m_isOptimizing = 0;
};

/// Bytes of the file system that holds the drive path: free for the user (kind 1), in all (kind 2).
/// Raises 76.
qint64 GetDriveSpace(const QString &path, int kind);

/// The folder for temporary files, ending with a backslash.
QString GetTempFolder();
