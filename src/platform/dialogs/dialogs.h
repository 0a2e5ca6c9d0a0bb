#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QWidget;

/// Boxes that block: message, input, file, folder, font and colour.
namespace dialogs
{

/// Style of a message box: buttons + icon + default button, added up.
enum Style : int {
    OKOnly = 0,
    OKCancel = 1,
    YesNoCancel = 3,
    YesNo = 4,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64,
    DefaultButton2 = 256,
    DefaultButton3 = 512,
};

/// Answers of a message box.
enum Answer : int { OK = 1, Cancel = 2, Yes = 6, No = 7 };

/// A font as the font box takes and gives it. The colour is 0x00BBGGRR.
struct FontChoice {
    QString name;
    int size = 9; ///< points
    qint32 color = 0;
    bool bold = false, italic = false, strikeout = false, underline = false;
};

/// A box about to be shown. Each kind uses its own fields.
struct Box {
    enum class Kind { Message, Input, File, Folder, Font, Color };
    Kind kind = Kind::Message;
    QString title;
    QString text;        ///< message; prompt of an input box
    int icon = 0;        ///< 0, 16, 32, 48, 64
    QStringList buttons; ///< the words, in order
    QString defaultButton;
    int beep = 0;        ///< code of the beep that came with it
    QString defaultText; ///< input box; file name of a file box
    QString filter;      ///< file box: "text|pattern|text|pattern"
    int filterIndex = 1;
    bool mustExist = false;
    bool createPrompt = false;
    bool save = false;            ///< file box: a save box
    QString folder;               ///< folder box: where it opens
    FontChoice font;              ///< font box: what it opens with
    qint32 color = 0;             ///< colour box: what it opens with, 0x00BBGGRR
    bool defaultHandling = false; ///< the box of the default handling of failures
};

/// What came back. `accepted` is false for a box that was cancelled.
struct Reply {
    bool accepted = false;
    int answer = 0; ///< message box
    QString text;   ///< input box's text; path of a file or folder box, a drive path
    FontChoice font;
    qint32 color = 0;
};

/// Shows a box and waits. By default a real one; a test puts its own in the place.
using Presenter = std::function<Reply(const Box &box)>;
void SetPresenter(Presenter presenter);
Reply Show(Box box);

/// Called before every box (the data engine commits what it holds back). Empty: none.
void SetBeforeBoxHook(std::function<void()> hook);

/// A message box. Without a title it bears "Wordmere".
int MsgBox(const QString &text, int style = OKOnly, const QString &title = {});

/// Beep of the style's icon, then the box.
int BeepAndMsgBox(int beep, const QString &text, int style, const QString &title);

/// An input box; a null text when it is cancelled.
QString InputBox(const QString &prompt, const QString &title, const QString &defaultText = {});

/// File boxes: the chosen drive path, empty when cancelled. The filter is "text|pattern|...".
QString OpenFile(const QString &title, const QString &filter, bool mustExist, bool createPrompt);
/// SaveFile opens with the name, where one is given.
QString SaveFile(const QString &title, const QString &filter, bool createPrompt, const QString &name = {});
QString ChooseFolder(const QString &title, const QString &folder);
/// The font box; without a title it bears its own.
std::optional<FontChoice> ChooseFont(const QString &title, const FontChoice &start);
std::optional<qint32> ChooseColor(qint32 start);

/// The word on a button ("OK", "キャンセル", "はい", "いいえ") and back (0 for none of them).
QString ButtonWord(int answer);
int AnswerOf(const QString &word);

} // namespace dialogs
