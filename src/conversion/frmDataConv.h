#pragma once

#include "conversion/pure/file_checks.h"
#include "platform/controls/form.h"

#include <QStringList>
#include <cstdint>
#include <memory>

class ConversionRun;
struct Format;
namespace Ui
{
class frmDataConvControls;
}

/// The dialog that turns a text dictionary into rows of a dictionary file. Shown above the main window.
class frmDataConv : public controls::Form
{
    Q_OBJECT
    Q_PROPERTY(short FormatIndex MEMBER FormatIndex)
    Q_PROPERTY(QString SourcePath MEMBER SourcePath)
    Q_PROPERTY(QString TargetPath MEMBER TargetPath)
    Q_PROPERTY(int SourceLineCount MEMBER SourceLineCount)
    Q_PROPERTY(QStringList FormatNames MEMBER FormatNames)
    Q_PROPERTY(QStringList FormatDescriptions MEMBER FormatDescriptions)
public:
    frmDataConv();
    ~frmDataConv() override;

    QStringList FormatNames;
    QStringList FormatDescriptions;
    std::int16_t FormatIndex = 0;
    /// The files of the run, drive paths.
    QString TargetPath;
    QString SourcePath;
    std::int32_t SourceLineCount = 0;

    /// Whether the run may start; may rewrite the two boxes. Creates a target that does not exist.
    bool CheckConvFiles();
    /// The number of lines of the source, -1 when the user stopped the counting or when it failed, which
    /// is told.
    std::int32_t CountSourceLines(const QString &path);

    /// A whole run each.
    void ConvertEijiro();
    void ConvertOneLine();
    void ConvertPdicText();
    void ConvertCsv();
    void ConvertGlossary();

    // For the run and the window of the counting.
    Ui::frmDataConvControls &Controls() const { return *m_controls; }
    /// The drop-down list, the two file boxes and their buttons.
    void EnableFileControls(bool enabled);
    QString FormatName() const { return FormatNames.at(FormatIndex); }

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;
    void Form_MouseMove(const QPoint &point) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ConnectHandlers();
    void ConvDicLst_Click();
    void sourceButton_Click();
    void targetButton_Click();
    void StartButton_Click();
    void StartButton_MouseMove();
    void QuitButton_Click();
    void CallConverter();
    void Run(const Format &format);

    std::unique_ptr<Ui::frmDataConvControls> m_controls;
    bool m_isRunning = false;
    bool m_unloadsAfterRun = false;
};
