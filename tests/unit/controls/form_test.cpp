#include "platform/controls/form.h"

#include "input.h"
#include "platform/controls/handler.h"
#include "platform/host/host.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace controls;

namespace
{

class TestForm : public Form
{
public:
    explicit TestForm(const QString &name, QWidget *parent = nullptr) : Form(name, parent) {}

    std::function<void()> onLoad, onUnload, onResize;
    std::function<bool(UnloadReason)> onQuery;
    bool acceptsFrame = true;
    QList<UnloadReason> unloads;
    int loads = 0;

protected:
    void Form_Load() override
    {
        ++loads;
        if (onLoad)
            onLoad();
    }
    bool Form_QueryUnload(UnloadReason reason) override { return onQuery ? onQuery(reason) : true; }
    void Form_Unload(UnloadReason reason) override
    {
        unloads.append(reason);
        if (onUnload)
            onUnload();
    }
    void Form_Resize() override
    {
        if (onResize)
            onResize();
    }
    bool AcceptsFrameClose() const override { return acceptsFrame; }
};

class FormTest : public testing::Test
{
protected:
    FormTest()
    {
        SetFailureHandler([this](const RuntimeError &failure) { failures.append(failure.number()); });
    }
    ~FormTest() override
    {
        while (!Form::Loaded().isEmpty())
            delete Form::Loaded().constLast();
        SetFailureHandler(nullptr);
    }
    static void DestroyUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QList<qint32> failures;
};

TEST_F(FormTest, LivesFromLoadToUnload)
{
    const QPointer<TestForm> form(new TestForm(QStringLiteral("frmA")));
    int gone = 0;
    QObject::connect(form, &Form::Unloaded, form, [&] { ++gone; });
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_EQ(Form::Named(QStringLiteral("frmA")), nullptr);
    form->ShowForm();
    form->ShowForm();
    EXPECT_EQ(form->loads, 1);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Form::Named(QStringLiteral("frmA")), form.data());
    EXPECT_EQ(Form::Loaded(), QList<Form *>{form});
    EXPECT_TRUE(form->Unload());
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->unloads, QList<UnloadReason>{UnloadReason::Code});
    EXPECT_EQ(gone, 1);
    EXPECT_TRUE(Form::Loaded().isEmpty());
    EXPECT_TRUE(form->Unload());
    EXPECT_EQ(gone, 1);
    DestroyUnloaded();
    EXPECT_TRUE(form.isNull());
}

TEST_F(FormTest, ModalShowReturnsAtOnce)
{
    auto *form = new TestForm(QStringLiteral("frmModal"));
    form->ShowModal();
    EXPECT_EQ(form->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(QApplication::activeModalWidget(), form);
    form->Unload();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    DestroyUnloaded();
}

TEST_F(FormTest, IsHeldByTheFormThatBlockedItWhileThatIsOpen)
{
    auto *main = new TestForm(QStringLiteral("frmMain"));
    main->ShowForm();
    EXPECT_FALSE(main->IsHeld());
    const auto open = [main] {
        auto *dialog = new TestForm(QStringLiteral("frmDialog"));
        dialog->onLoad = [main] { main->SetTakesInput(false); };
        dialog->ShowModal();
        return dialog;
    };
    TestForm *dialog = open();
    EXPECT_TRUE(main->IsHeld());
    main->SetTakesInput(true);
    EXPECT_FALSE(main->IsHeld());
    dialog->Unload();
    // One that goes without giving the input back holds nothing any more.
    dialog = open();
    EXPECT_TRUE(main->IsHeld());
    dialog->Unload();
    EXPECT_FALSE(main->TakesInput());
    EXPECT_FALSE(main->IsHeld());
    DestroyUnloaded();
    EXPECT_FALSE(main->IsHeld());
    // Blocked by no form's load: held by none.
    main->SetTakesInput(true);
    main->SetTakesInput(false);
    EXPECT_FALSE(main->IsHeld());
}

TEST_F(FormTest, StandsAboveTheFormShownLast)
{
    auto *main = new TestForm(QStringLiteral("frmMain"));
    main->setGeometry(100, 100, 600, 400);
    main->ShowForm();
    auto *dialog = new TestForm(QStringLiteral("frmDialog"));
    dialog->SetDialogFrame();
    dialog->resize(200, 100);
    dialog->ShowModal();
    ASSERT_NE(dialog->windowHandle(), nullptr);
    EXPECT_EQ(dialog->windowHandle()->transientParent(), main->windowHandle());
    EXPECT_FALSE(dialog->windowFlags().testFlag(Qt::WindowMinMaxButtonsHint));
    auto *second = new TestForm(QStringLiteral("frmSecond"));
    second->onLoad = [second] {
        second->resize(50, 50);
        second->Centre();
    };
    second->ShowAbove(*main);
    EXPECT_EQ(second->windowHandle()->transientParent(), main->windowHandle());
    // A pixel's difference is the frame's.
    const QPoint off = second->geometry().center() - second->screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 4);
    dialog->Unload();
    second->Unload();
    main->Unload();
    DestroyUnloaded();
}

TEST_F(FormTest, FrameAsksAndCodeDoesNot)
{
    const QPointer<TestForm> form(new TestForm(QStringLiteral("frmB")));
    QList<UnloadReason> asked;
    bool allows = false;
    form->onQuery = [&](UnloadReason reason) {
        asked.append(reason);
        return allows;
    };
    form->ShowForm();
    form->acceptsFrame = false;
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(asked.isEmpty());
    form->acceptsFrame = true;
    EXPECT_FALSE(form->close());
    EXPECT_TRUE(form->isVisible());
    allows = true;
    EXPECT_TRUE(form->close());
    EXPECT_EQ(asked, (QList<UnloadReason>{UnloadReason::Frame, UnloadReason::Frame}));
    EXPECT_EQ(form->unloads, QList<UnloadReason>{UnloadReason::Frame});
    DestroyUnloaded();
    EXPECT_TRUE(form.isNull());
}

TEST_F(FormTest, FailingQueryKeepsTheFormAndFailingUnloadDoesNot)
{
    const QPointer<TestForm> form(new TestForm(QStringLiteral("frmC")));
    form->ShowForm();
    form->onQuery = [](UnloadReason) -> bool { throw RuntimeError(RuntimeError::DiskFull); };
    EXPECT_FALSE(form->Unload());
    EXPECT_TRUE(form->IsLoaded());
    EXPECT_TRUE(form->isVisible());
    form->onUnload = [] { throw std::runtime_error("foreign"); };
    EXPECT_TRUE(form->Unload(UnloadReason::Exit));
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(failures, (QList<qint32>{RuntimeError::DiskFull, RuntimeError::DiskFull, 51}));
    DestroyUnloaded();
    EXPECT_TRUE(form.isNull());
}

TEST_F(FormTest, NestedUnloadIsRefused)
{
    auto *form = new TestForm(QStringLiteral("frmD"));
    bool nested = true;
    form->onQuery = [&](UnloadReason) {
        nested = form->Unload();
        return true;
    };
    form->ShowForm();
    EXPECT_TRUE(form->Unload());
    EXPECT_FALSE(nested);
    EXPECT_EQ(form->unloads.size(), 1);
    DestroyUnloaded();
}

TEST_F(FormTest, FailedLoadIsUndone)
{
    auto *main = new TestForm(QStringLiteral("frmMain"));
    main->ShowForm();
    const QPointer<TestForm> form(new TestForm(QStringLiteral("frmE")));
    form->onLoad = [&] {
        main->SetTakesInput(false);
        throw RuntimeError(RuntimeError::FileNotFound);
    };
    try {
        form->ShowForm();
        FAIL() << "the failure must go on";
    } catch (const RuntimeError &failure) {
        EXPECT_EQ(failure.number(), RuntimeError::FileNotFound);
    }
    EXPECT_TRUE(main->TakesInput());
    EXPECT_FALSE(form->IsLoaded());
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(form->unloads.isEmpty());
    EXPECT_EQ(Form::Loaded(), QList<Form *>{main});
    DestroyUnloaded();
    EXPECT_TRUE(form.isNull());
}

TEST_F(FormTest, LoadThatUnloadsIsNotShown)
{
    auto *form = new TestForm(QStringLiteral("frmF"));
    form->onLoad = [&] { form->Unload(); };
    form->ShowForm();
    EXPECT_FALSE(form->isVisible());
    DestroyUnloaded();
}

TEST_F(FormTest, IsNotDestroyedWhileAHandlerRuns)
{
    const QPointer<TestForm> form(new TestForm(QStringLiteral("frmG")));
    form->ShowForm();
    RunHandler([&] {
        form->Unload();
        host::DoEvents();
        DestroyUnloaded();
        EXPECT_FALSE(form.isNull());
    });
    DestroyUnloaded();
    EXPECT_TRUE(form.isNull());
}

TEST_F(FormTest, FailuresOfItsHandlersStayInside)
{
    auto *form = new TestForm(QStringLiteral("frmH"));
    form->onResize = [] { throw RuntimeError(RuntimeError::Overflow); };
    form->ShowForm();
    failures.clear();
    form->resize(form->width() + 20, form->height());
    EXPECT_EQ(failures, QList<qint32>{RuntimeError::Overflow});
}

struct BlockedForm {
    TestForm *form = new TestForm(QStringLiteral("frmBlocked"));
    QMenuBar *bar = new QMenuBar(form);
    QMenu *menu = bar->addMenu(QStringLiteral("ファイル(&F)"));
    QAction *action = menu->addAction(QStringLiteral("印刷(&P)"));
    QLineEdit *edit = new QLineEdit(form);
    QPushButton *button = new QPushButton(form);
    int triggers = 0, clicks = 0;

    BlockedForm()
    {
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
        auto *rows = new QVBoxLayout(form);
        rows->setMenuBar(bar);
        rows->addWidget(edit);
        rows->addWidget(button);
        QObject::connect(action, &QAction::triggered, form, [this] { ++triggers; });
        QObject::connect(button, &QPushButton::clicked, form, [this] { ++clicks; });
        form->ShowForm();
        form->activateWindow();
        input::Until([this] { return form->isActiveWindow(); });
    }
    void TryEverything()
    {
        input::Key(*edit, Qt::Key_A, QStringLiteral("a"));
        QInputMethodEvent committed;
        committed.setCommitString(QStringLiteral("辞"));
        QApplication::sendEvent(edit, &committed);
        input::Click(*button, {4, 4});
        QShortcutEvent shortcut(QKeySequence(Qt::CTRL | Qt::Key_P), 0);
        QApplication::sendEvent(action, &shortcut);
        menu->popup({0, 0});
        input::Click(*menu, menu->actionGeometry(action).center());
        menu->close();
    }
};

TEST_F(FormTest, BlockedFormLooksEnabledAndTakesNothing)
{
    BlockedForm blocked;
    blocked.form->SetTakesInput(false);
    EXPECT_FALSE(blocked.form->TakesInput());
    EXPECT_TRUE(blocked.button->isEnabled());
    blocked.TryEverything();
    EXPECT_EQ(blocked.edit->text(), QString());
    EXPECT_EQ(blocked.clicks, 0);
    EXPECT_EQ(blocked.triggers, 0);

    blocked.form->SetTakesInput(true);
    blocked.TryEverything();
    EXPECT_EQ(blocked.edit->text(), QStringLiteral("a辞"));
    EXPECT_EQ(blocked.clicks, 1);
    EXPECT_EQ(blocked.triggers, 2);
}

TEST_F(FormTest, BlockingOneFormLeavesItsOwnChildFormsAlone)
{
    BlockedForm blocked;
    auto *child = new TestForm(QStringLiteral("frmChild"), blocked.form);
    auto *edit = new QLineEdit(child);
    child->ShowForm();
    blocked.form->SetTakesInput(false);
    input::Key(*edit, Qt::Key_A, QStringLiteral("a"));
    EXPECT_EQ(edit->text(), QStringLiteral("a"));
    blocked.form->SetTakesInput(true);
}

TEST_F(FormTest, ComesUpOverTheMiddleOfItsOwnerAndStaysAboveIt)
{
    auto *owner = new TestForm(QStringLiteral("frmOwner"));
    owner->setGeometry(100, 80, 400, 300);
    owner->ShowForm();
    const QPointer<TestForm> form(new TestForm(QStringLiteral("frmA")));
    form->resize(200, 100);
    form->ShowAbove(*owner);
    EXPECT_EQ(form->windowHandle()->transientParent(), owner->windowHandle());
    EXPECT_EQ(form->windowType(), Qt::Dialog);
    EXPECT_EQ(form->parentWidget(), nullptr);
    EXPECT_LE((form->geometry().center() - owner->frameGeometry().center()).manhattanLength(), 4);

    // Whoever goes to an owner that takes no input is where he can go on.
    owner->SetTakesInput(false);
    owner->activateWindow();
    EXPECT_TRUE(input::Until([&] { return form->isActiveWindow(); }));
    owner->SetTakesInput(true);
    EXPECT_TRUE(input::Until([&] { return owner->isActiveWindow(); }));

    // No part of it beyond the screen, nor moved when it is shown again.
    form->move(3, 4);
    form->ShowForm();
    EXPECT_EQ(form->pos(), QPoint(3, 4));
    const QRect room = owner->screen()->availableGeometry();
    owner->move(room.bottomRight() - QPoint(50, 50));
    auto *other = new TestForm(QStringLiteral("frmB"));
    other->resize(200, 100);
    other->ShowAbove(*owner);
    EXPECT_TRUE(room.contains(other->geometry()));
    delete owner;
    EXPECT_TRUE(form) << "the two do not share their lives";
}

TEST_F(FormTest, EnterAndEscPressTheirButtons)
{
    auto *form = new TestForm(QStringLiteral("frmKeys"));
    auto *edit = new QLineEdit(form);
    auto *ok = new QPushButton(form), *cancel = new QPushButton(form);
    int oks = 0, cancels = 0;
    QObject::connect(ok, &QPushButton::clicked, form, [&] { ++oks; });
    QObject::connect(cancel, &QPushButton::clicked, form, [&] { ++cancels; });
    form->SetKeyButtons(ok, cancel);
    form->ShowForm();
    input::Key(*edit, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(oks, 1);
    input::Key(*edit, Qt::Key_Escape, QStringLiteral("\x1b"));
    EXPECT_EQ(cancels, 1);
    auto *check = new QCheckBox(form);
    check->show();
    check->setFocus();
    input::Key(*check, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(oks, 2);
    EXPECT_FALSE(check->isChecked());
    ok->setEnabled(false);
    input::Key(*edit, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(oks, 2);
}

TEST_F(FormTest, HandlersAreCountedAndFailuresStop)
{
    EXPECT_EQ(RunningHandlers(), 0);
    bool after = false;
    RunHandler([&] {
        RunHandler([&] {
            EXPECT_EQ(RunningHandlers(), 2);
            throw RuntimeError(RuntimeError::TypeMismatch);
        });
        EXPECT_EQ(failures, QList<qint32>{RuntimeError::TypeMismatch});
        WhenNoHandlerRuns([&] { after = true; });
        EXPECT_FALSE(after);
    });
    EXPECT_TRUE(after);
    EXPECT_EQ(RunningHandlers(), 0);
    after = false;
    WhenNoHandlerRuns([&] { after = true; });
    EXPECT_TRUE(after);
    SetFailureHandler([](const RuntimeError &) { throw RuntimeError(RuntimeError::Overflow); });
    RunHandler([] { throw 1; });
    EXPECT_EQ(RunningHandlers(), 0);
}

} // namespace
