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
    /// Loads if need be, and shows the form. All return at once. ShowAbove keeps it above another window
    /// for good, and gives it the activation of one that takes no input; ShowModal does so above the form
    /// shown last that owns such, and blocks every other window. Both put it over the middle of that window
    /// unless its load has placed it.
    void ShowForm();
    void ShowAbove(const Form &owner);
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
    /// Whether a form that blocked this one's input when it was loaded is still open.
    bool IsHeld() const;

    /// Puts the form in the middle of its screen.
    void Centre();
    /// Leaves the window frame its title and the button that closes it: nothing to minimise or to grow.
    void SetDialogFrame();

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
    /// Whether modal forms opened while this one is shown belong to it: not to a window that stands beside.
    virtual bool OwnsModalForms() const { return true; }
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
    void StandAbove(const Form &owner);
    void Leave();
    void ActivateOwned();

    bool m_loaded = false;
    bool m_unloading = false;
    bool m_takesInput = true;
    bool m_centred = false;
    QList<QPointer<Form>> m_disabledWhileLoading;
    QPointer<Form> m_holder;
    QPointer<const Form> m_owner;
    QPointer<QAbstractButton> m_enterButton;
    QPointer<QAbstractButton> m_escapeButton;
};

} // namespace controls
