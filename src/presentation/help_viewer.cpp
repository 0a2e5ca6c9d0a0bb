#include "presentation/help_viewer.h"

#include "core/pure/app_files.h"
#include "platform/controls/handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "presentation/frmHelp.h"

#include <QApplication>
#include <QKeyEvent>

using controls::Form;

namespace
{

frmHelp *HelpWindow() { return qobject_cast<frmHelp *>(Form::Named(QStringLiteral("frmHelp"))); }

void Tell(const QString &helpFile, const QString &title, const QString &what)
{
    dialogs::BeepAndMsgBox(host::BeepExclamation, helpFile + QStringLiteral("\r\n\r\n") + what,
                           dialogs::Exclamation, title);
}

QString DamageTitle() { return QStringLiteral("ヘルプファイルの誤り"); }

/// The book of a help file. What stands in the way is told; then it has no topics, or those that can
/// be read.
HelpBook OpenBook(const QString &helpFile)
{
    if (!files::Exists(helpFile)) {
        Tell(helpFile, QStringLiteral("ヘルプファイル未検出"),
             QStringLiteral("上記のヘルプファイルが存在しないため、ヘルプを表示できません。"));
        return {};
    }
    HelpBook book;
    try {
        book = ReadHelpBook(files::ReadAll(helpFile));
    } catch (const RuntimeError &failure) {
        Tell(helpFile, DamageTitle(),
             QStringLiteral("上記のヘルプファイルを読み込めないため、ヘルプを表示できません。\r\n") +
                 failure.description());
        return {};
    }
    if (!book.isWhole)
        Tell(helpFile, DamageTitle(),
             book.topics.isEmpty()
                 ? QStringLiteral("上記のヘルプファイルは壊れているため、ヘルプを表示できません。")
                 : QStringLiteral(
                       "上記のヘルプファイルは一部が壊れています。\r\n読み取れる部分だけを表示します。"));
    return book;
}

/// The help window, opened if it is not open; nullptr where there is nothing to show.
frmHelp *OpenWindow(const QString &helpFile)
{
    if (frmHelp *window = HelpWindow())
        return window;
    const HelpBook book = OpenBook(helpFile);
    // A box lets events through: the program may have closed, or the window may stand by now.
    if (book.topics.isEmpty() || !MainWindow())
        return nullptr;
    frmHelp *window = HelpWindow();
    return window ? window : new frmHelp(book);
}

void View(const QString &helpFile, int command, const QString &topic)
{
    if (command == host::HelpQuit) {
        if (frmHelp *window = HelpWindow())
            window->Unload(controls::UnloadReason::Exit);
        return;
    }
    frmHelp *window = OpenWindow(helpFile);
    if (!window)
        return;
    if (command == host::HelpContext)
        window->ShowTopic(topic);
    else
        window->ShowContents();
}

/// The form that a window belongs to, which for a box or a drop-down list is the one below it.
const Form *FormInFront(const QWidget *widget)
{
    while (widget) {
        widget = widget->window();
        if (const auto *form = qobject_cast<const Form *>(widget))
            return form;
        widget = widget->parentWidget();
    }
    return MainWindow();
}

void CloseDropDowns()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        if (!popup->close())
            return;
}

/// Takes F1 before any window does.
class HelpKey : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
            return false;
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || !MainWindow())
            return false;
        const QWidget *widget = ReceiverOf(watched);
        if (!widget)
            return false;
        // The override keeps the key from the menu entry that bears it; it comes back as a plain key.
        event->accept();
        if (event->type() == QEvent::KeyPress && !key->isAutoRepeat())
            ShowTopicOf(*FormInFront(widget));
        return true;
    }

private:
    /// The widget that a key is for: an event for a window goes on to the one with the focus.
    static const QWidget *ReceiverOf(QObject *watched)
    {
        if (const auto *widget = qobject_cast<const QWidget *>(watched))
            return widget;
        return watched->isWindowType() && !QApplication::focusWidget() ? QApplication::activeWindow()
                                                                       : nullptr;
    }

    static void ShowTopicOf(const Form &form)
    {
        CloseDropDowns();
        controls::RunHandler(
            [topic = form.objectName()] { host::WinHelp(HelpFilePath(), host::HelpContext, topic); });
    }
};

} // namespace

void InstallHelpViewer()
{
    host::SetHelpViewer(View);
    qApp->installEventFilter(new HelpKey(qApp));
}
