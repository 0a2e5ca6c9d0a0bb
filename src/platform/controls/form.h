#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <QWidget>

namespace controls
{

/// Why a form is unloaded.
enum class UnloadReason { Code, Frame, Exit };

/// A window with the life of a form: loaded, shown, asked, unloaded. It is made with `new` and
/// destroys itself after it has been unloaded, when no handler of it runs any more.
class Form : public QWidget
{
    Q_OBJECT
public:
    /// The name becomes the objectName.
    explicit Form(const QString &name, QWidget *parent = nullptr);
    ~Form() override;

    /// Runs Form_Load once. A failure in it unloads the form, gives input back to the form that it
    /// disabled, and goes on to the caller.
    void Load();
    /// Loads if need be, and shows the form; modal ones block every other window. Both return at once.
    void ShowForm();
    void ShowModal();
    /// Asks Form_QueryUnload, then runs Form_Unload and goes. False when it was refused. A failure
    /// in Form_QueryUnload refuses, so that what the user typed stays, except at the program's end;
    /// one in Form_Unload does not hold the form up. Both go to the default handling.
    bool Unload(UnloadReason reason = UnloadReason::Code);
    bool IsLoaded() const { return m_loaded; }

    /// Blocks every input to this window, menus and shortcuts included, without greying it, or gives
    /// it back and activates the window. Closing by the frame is asked of AcceptsFrameClose.
    void SetTakesInput(bool takes);
    bool TakesInput() const { return m_takesInput; }

    /// Puts the form in the middle of its screen.
    void Centre();
    /// The window that this one stays above; it comes up over the middle of it, and gets the activation
    /// of one that takes no input. To be told before the form is shown. The two do not share their lives.
    void SetOwner(QWidget &owner);

    /// The buttons that Enter and Esc press, where the control that has the focus leaves the key
    /// alone. A button that has the focus takes Enter itself. Null: none.
    void SetKeyButtons(QAbstractButton *enter, QAbstractButton *escape);

    /// The forms that are loaded, oldest first.
    static QList<Form *> Loaded();
    /// The loaded form of that name, or nullptr.
    static Form *Named(const QString &name);

Q_SIGNALS:
    void Unloaded();

protected:
    virtual void Form_Load() {}
    /// False refuses.
    virtual bool Form_QueryUnload(UnloadReason reason);
    virtual void Form_Unload(UnloadReason reason);
    /// Whether the window frame may close the form at present.
    virtual bool AcceptsFrameClose() const { return true; }
    virtual void Form_MouseMove(const QPoint &) {}
    virtual void Form_Resize() {}

    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool IsUnloadRefused(UnloadReason reason);
    void UndoLoad();
    void Leave();
    void StandAboveOwner();
    void ActivateOwned();

    bool m_loaded = false;
    bool m_unloading = false;
    bool m_takesInput = true;
    QList<QPointer<Form>> m_disabledWhileLoading;
    QPointer<QWidget> m_owner;
    QPointer<QAbstractButton> m_enterButton;
    QPointer<QAbstractButton> m_escapeButton;
};

} // namespace controls
