#include "platform/controls/form.h"

#include "platform/controls/handler.h"
#include "platform/controls/input_blocker.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace controls
{

namespace
{

QList<Form *> loadedForms;
// Forms whose Form_Load runs at present, the innermost last.
QList<Form *> loadingForms;

} // namespace

Form::Form(const QString &name, QWidget *parent) : QWidget(parent, Qt::Window)
{
    setObjectName(name);
    setMouseTracking(true);
}

Form::~Form()
{
    loadedForms.removeAll(this);
    loadingForms.removeAll(this);
    if (!m_takesInput)
        InputBlocker::Release();
}

void Form::Load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    loadedForms.append(this);
    loadingForms.append(this);
    const QPointer<Form> self(this);
    try {
        Form_Load();
    } catch (...) {
        loadingForms.removeAll(this);
        if (self && m_loaded)
            UndoLoad();
        throw;
    }
    loadingForms.removeAll(this);
    if (self)
        m_disabledWhileLoading.clear();
}

void Form::UndoLoad()
{
    for (const QPointer<Form> &form : std::as_const(m_disabledWhileLoading))
        if (form && form->m_loaded)
            form->SetTakesInput(true);
    m_disabledWhileLoading.clear();
    Leave();
}

void Form::ShowForm()
{
    const QPointer<Form> self(this);
    Load();
    if (!self || !m_loaded)
        return;
    show();
    raise();
    activateWindow();
}

void Form::ShowAbove(const Form &owner)
{
    const QPointer<Form> self(this);
    const QPointer<const Form> stillOwner(&owner);
    Load();
    if (!self || !m_loaded)
        return;
    if (!isVisible() && stillOwner)
        StandAbove(*stillOwner);
    ShowForm();
}

void Form::ShowModal()
{
    if (!isVisible())
        setWindowModality(Qt::ApplicationModal);
    const auto isOwner = [this](const Form *form) {
        return form != this && form->isVisible() && form->OwnsModalForms();
    };
    const auto owner = std::find_if(loadedForms.crbegin(), loadedForms.crend(), isOwner);
    if (owner == loadedForms.crend())
        ShowForm();
    else
        ShowAbove(**owner);
}

void Form::StandAbove(const Form &owner)
{
    // A parent widget would do the same, but a child window dies with its parent, and above one that
    // holds the pane it is not painted.
    m_owner = &owner;
    // Desktops keep dialogs above their owners, and other windows not. Minimised, it would leave an owner
    // that takes no input.
    setWindowFlags((windowFlags() & ~(Qt::WindowType_Mask | Qt::WindowMinimizeButtonHint)) | Qt::Dialog);
    if (!testAttribute(Qt::WA_Resized))
        adjustSize();
    create();
    windowHandle()->setTransientParent(owner.windowHandle());
    if (m_centred)
        return;
    const QRect room = owner.screen()->availableGeometry();
    QRect place(QPoint(), size());
    place.moveCenter(owner.geometry().center());
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveTopLeft({std::max(room.left(), place.left()), std::max(room.top(), place.top())});
    setGeometry(place);
}

void Form::SetDialogFrame()
{
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
}

bool Form::Unload(UnloadReason reason)
{
    if (!m_loaded)
        return true;
    if (m_unloading)
        return false;
    m_unloading = true;
    bool gone = false;
    // One handler around all: the form is not destroyed before it has returned.
    RunHandler([this, reason, &gone] {
        if (IsUnloadRefused(reason)) {
            m_unloading = false;
            return;
        }
        RunHandler([this, reason] { Form_Unload(reason); });
        Leave();
        gone = true;
    });
    return gone;
}

bool Form::IsUnloadRefused(UnloadReason reason)
{
    bool allowed = reason == UnloadReason::Exit;
    RunHandler([this, reason, &allowed] { allowed = Form_QueryUnload(reason); });
    return !allowed;
}

void Form::Leave()
{
    m_loaded = false;
    m_unloading = false;
    loadedForms.removeAll(this);
    hide();
    WhenNoHandlerRuns([self = QPointer<Form>(this)] {
        if (self)
            self->deleteLater();
    });
    Q_EMIT Unloaded();
}

bool Form::Form_QueryUnload(UnloadReason) { return true; }

void Form::Form_Unload(UnloadReason) {}

void Form::SetTakesInput(bool takes)
{
    if (takes == m_takesInput)
        return;
    m_takesInput = takes;
    if (!takes) {
        InputBlocker::Block(*this);
        if (!loadingForms.isEmpty() && loadingForms.constLast() != this) {
            m_holder = loadingForms.constLast();
            m_holder->m_disabledWhileLoading.append(this);
        }
        return;
    }
    m_holder = nullptr;
    InputBlocker::Release();
    if (isVisible()) {
        raise();
        activateWindow();
    }
}

bool Form::IsHeld() const { return m_holder && m_holder->m_loaded; }

void Form::Centre()
{
    m_centred = true;
    const QRect room = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    move(room.left() + (room.width() - frame.width()) / 2, room.top() + (room.height() - frame.height()) / 2);
}

void Form::SetKeyButtons(QAbstractButton *enter, QAbstractButton *escape)
{
    m_enterButton = enter;
    m_escapeButton = escape;
}

QList<Form *> Form::Loaded() { return loadedForms; }

Form *Form::Named(const QString &name)
{
    for (Form *form : std::as_const(loadedForms))
        if (form->objectName() == name)
            return form;
    return nullptr;
}

void Form::closeEvent(QCloseEvent *event)
{
    if (!m_loaded)
        return;
    bool accepts = false;
    RunHandler([this, &accepts] { accepts = AcceptsFrameClose(); });
    event->setAccepted(accepts && Unload(UnloadReason::Frame));
}

bool Form::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && !m_takesInput)
        ActivateOwned();
    return QWidget::event(event);
}

void Form::ActivateOwned()
{
    for (Form *form : std::as_const(loadedForms))
        if (form->m_owner == this && form->isVisible())
            form->activateWindow();
}

void Form::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_loaded)
        RunHandler([this] { Form_Resize(); });
}

void Form::mouseMoveEvent(QMouseEvent *event)
{
    if (m_loaded)
        RunHandler([this, where = event->position().toPoint()] { Form_MouseMove(where); });
}

void Form::keyPressEvent(QKeyEvent *event)
{
    QAbstractButton *button = nullptr;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // A check box leaves Enter to the form.
        auto *focused = qobject_cast<QPushButton *>(focusWidget());
        button = focused ? static_cast<QAbstractButton *>(focused) : m_enterButton.data();
    } else if (event->key() == Qt::Key_Escape) {
        button = m_escapeButton;
    }
    if (button && button->isVisible() && button->isEnabled() && !event->isAutoRepeat())
        button->click();
    else
        QWidget::keyPressEvent(event);
}

} // namespace controls
