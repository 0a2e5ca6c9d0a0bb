#include "platform/dialogs/dialogs.h"

#include "platform/dialogs/default_presenter.h"
#include "platform/host/host.h"
#include "platform/text/one_line.h"

#include <array>

namespace
{

dialogs::Presenter presenter;
std::function<void()> beforeBoxHook;

struct Word {
    int answer;
    const char16_t *text;
};
constexpr std::array kWords{Word{dialogs::OK, u"OK"}, Word{dialogs::Cancel, u"キャンセル"},
                            Word{dialogs::Yes, u"はい"}, Word{dialogs::No, u"いいえ"}};

constexpr int kButtonsPart = 0x0F;
constexpr int kIconPart = 0x70;
constexpr int kDefaultButtonPart = 0x300;

QList<int> AnswersOf(int style)
{
    using namespace dialogs;
    switch (style & kButtonsPart) {
    case OKCancel: return {OK, Cancel};
    case YesNoCancel: return {Yes, No, Cancel};
    case YesNo: return {Yes, No};
    default: return {OK};
    }
}

QString TitleOr(const QString &title) { return title.isEmpty() ? QStringLiteral("Wordmere") : title; }

QString ShowFileBox(dialogs::Box box)
{
    box.kind = dialogs::Box::Kind::File;
    const dialogs::Reply reply = dialogs::Show(std::move(box));
    return reply.accepted ? reply.text : QString();
}

} // namespace

void dialogs::SetPresenter(Presenter newPresenter) { presenter = std::move(newPresenter); }

void dialogs::SetBeforeBoxHook(std::function<void()> hook) { beforeBoxHook = std::move(hook); }

dialogs::Reply dialogs::Show(Box box)
{
    if (const auto hook = beforeBoxHook)
        hook();
    box.beep = host::TakePendingBeep();
    const host::PointerAside aside;
    // A copy, for a box may put another presenter in the place.
    if (const Presenter present = presenter)
        return present(box);
    return PresentBox(box);
}

int dialogs::MsgBox(const QString &text, int style, const QString &title)
{
    Box box;
    box.kind = Box::Kind::Message;
    box.title = TitleOr(title);
    box.text = text;
    box.icon = style & kIconPart;
    const QList<int> answers = AnswersOf(style);
    for (const int answer : answers)
        box.buttons.append(ButtonWord(answer));
    box.defaultButton =
        box.buttons.value((style & kDefaultButtonPart) / DefaultButton2, box.buttons.constFirst());
    const Reply reply = Show(std::move(box));
    if (answers.contains(reply.answer))
        return reply.answer;
    return answers.contains(Cancel) ? static_cast<int>(Cancel) : answers.constLast();
}

int dialogs::BeepAndMsgBox(int beep, const QString &text, int style, const QString &title)
{
    host::MessageBeep(beep);
    return MsgBox(text, style, title);
}

QString dialogs::InputBox(const QString &prompt, const QString &title, const QString &defaultText)
{
    Box box;
    box.kind = Box::Kind::Input;
    box.title = TitleOr(title);
    box.text = prompt;
    box.defaultText = defaultText;
    const Reply reply = Show(std::move(box));
    if (!reply.accepted)
        return {};
    const QString line = text::OneLine(reply.text);
    return line.isNull() ? QStringLiteral("") : line;
}

QString dialogs::OpenFile(const QString &title, const QString &filter, bool mustExist, bool createPrompt)
{
    Box box;
    box.title = title.isEmpty() ? QStringLiteral("ファイルを開く") : title;
    box.filter = filter;
    box.mustExist = mustExist;
    box.createPrompt = createPrompt;
    return ShowFileBox(std::move(box));
}

QString dialogs::SaveFile(const QString &title, const QString &filter, bool createPrompt, const QString &name)
{
    Box box;
    box.title = title.isEmpty() ? QStringLiteral("名前を付けて保存") : title;
    box.filter = filter;
    box.createPrompt = createPrompt;
    box.defaultText = name;
    box.save = true;
    return ShowFileBox(std::move(box));
}

QString dialogs::ChooseFolder(const QString &title, const QString &folder)
{
    Box box;
    box.kind = Box::Kind::Folder;
    box.title = title.isEmpty() ? QStringLiteral("フォルダの参照") : title;
    box.folder = folder;
    const Reply reply = Show(std::move(box));
    return reply.accepted ? reply.text : QString();
}

std::optional<dialogs::FontChoice> dialogs::ChooseFont(const QString &title, const FontChoice &start)
{
    Box box;
    box.kind = Box::Kind::Font;
    box.title = title.isEmpty() ? QStringLiteral("フォントの指定") : title;
    box.font = start;
    const Reply reply = Show(std::move(box));
    return reply.accepted ? std::optional(reply.font) : std::nullopt;
}

std::optional<qint32> dialogs::ChooseColor(qint32 start)
{
    Box box;
    box.kind = Box::Kind::Color;
    box.title = QStringLiteral("色の設定");
    box.color = start;
    const Reply reply = Show(std::move(box));
    return reply.accepted ? std::optional(reply.color) : std::nullopt;
}

QString dialogs::ButtonWord(int answer)
{
    for (const Word &word : kWords)
        if (word.answer == answer)
            return QString::fromUtf16(word.text);
    return {};
}

int dialogs::AnswerOf(const QString &word)
{
    for (const Word &known : kWords)
        if (word == QString::fromUtf16(known.text))
            return known.answer;
    return 0;
}
