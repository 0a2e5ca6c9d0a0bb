#include "platform/dialogs/default_presenter.h"

#include "platform/dialogs/font_box.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/host/looks.h"
#include "platform/host/plain_texts.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace dialogs
{

namespace
{

// The folder that the last file box was left in, kept for the run.
QString lastFolder;

QString ShownLines(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

/// Runs a dialog that may be destroyed with its parent meanwhile; whether it was accepted, with what
/// `read` takes from it.
template <typename Dialog, typename Read> Reply Run(Dialog *dialog, Read read)
{
    const QPointer<Dialog> guard(dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    Reply reply;
    if (guard && accepted) {
        reply = read(*dialog);
        reply.accepted = true;
    }
    delete guard.data();
    return reply;
}

QMessageBox::Icon IconOf(int icon)
{
    switch (icon) {
    case Critical: return QMessageBox::Critical;
    case Question: return QMessageBox::Question;
    case Exclamation: return QMessageBox::Warning;
    case Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
    }
}

/// Roles that keep the buttons in the usual order, and give Esc to a cancel button and to none else.
QMessageBox::ButtonRole RoleOf(int answer)
{
    switch (answer) {
    case Yes: return QMessageBox::YesRole;
    case No: return QMessageBox::DestructiveRole;
    case Cancel: return QMessageBox::RejectRole;
    default: return QMessageBox::AcceptRole;
    }
}

QString WordWithMnemonic(const QString &word)
{
    switch (AnswerOf(word)) {
    case Yes: return word + QStringLiteral("(&Y)");
    case No: return word + QStringLiteral("(&N)");
    default: return word;
    }
}

Reply PresentMessage(const Box &box, QWidget *parent)
{
    const QPointer<QMessageBox> dialog(new QMessageBox(parent));
    dialog->setIcon(IconOf(box.icon));
    host::SetTitle(*dialog, box.title);
    dialog->setTextFormat(Qt::PlainText);
    dialog->setText(ShownLines(box.text));
    dialog->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Desktops order buttons in many ways; these stay as the user knows them.
    dialog->setStyleSheet(QStringLiteral("QDialogButtonBox { button-layout: 0 }"));
    QHash<QAbstractButton *, int> answers;
    for (const QString &word : box.buttons) {
        const int answer = AnswerOf(word);
        QPushButton *button = dialog->addButton(WordWithMnemonic(word), RoleOf(answer));
        button->setAccessibleName(word);
        answers.insert(button, answer);
        if (word == box.defaultButton)
            dialog->setDefaultButton(button);
    }
    dialog->exec();
    Reply reply;
    if (dialog)
        reply.answer = answers.value(dialog->clickedButton(), 0);
    reply.accepted = reply.answer != 0 && reply.answer != Cancel;
    delete dialog.data();
    return reply;
}

Reply PresentInput(const Box &box, QWidget *parent)
{
    auto *dialog = new QInputDialog(parent);
    dialog->setInputMode(QInputDialog::TextInput);
    host::SetTitle(*dialog, box.title);
    dialog->setLabelText(ShownLines(box.text));
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
    dialog->setTextValue(box.defaultText);
    dialog->setOkButtonText(ButtonWord(OK));
    dialog->setCancelButtonText(ButtonWord(Cancel));
    dialog->resize(dialog->sizeHint().expandedTo({420, 0}));
    return Run(dialog, [](const QInputDialog &done) {
        Reply reply;
        reply.text = done.textValue();
        return reply;
    });
}

/// The drive path of a chosen file; tells the user and gives nothing for a name that has none.
QString DrivePathOrBox(const QString &hostPath, QWidget *parent)
{
    try {
        return files::DrivePath(hostPath);
    } catch (const RuntimeError &) {
        Box box;
        box.title = QStringLiteral("ファイル名の誤り");
        box.text =
            QStringLiteral(
                "名前に「\\」を含むファイルやフォルダは使用できません。\n別の名前を選択してください。\n\n%1")
                .arg(hostPath);
        box.icon = Exclamation;
        box.buttons = QStringList{ButtonWord(OK)};
        box.defaultButton = ButtonWord(OK);
        PresentMessage(box, parent);
        return {};
    }
}

bool UserWantsNewFile(const QString &hostPath, QWidget *parent)
{
    Box box;
    box.title = QStringLiteral("ファイルの作成");
    box.text =
        QStringLiteral("%1\nこのファイルは存在しません。\n作成しますか?").arg(QFileInfo(hostPath).fileName());
    box.icon = Question;
    box.buttons = QStringList{ButtonWord(Yes), ButtonWord(No)};
    box.defaultButton = ButtonWord(Yes);
    return PresentMessage(box, parent).answer == Yes;
}

/// The kinds of files in the list, in the user's language.
class FileTypes : public QFileIconProvider
{
public:
    QString type(const QFileInfo &file) const override
    {
        if (file.isDir())
            return QStringLiteral("フォルダ");
        return file.suffix().isEmpty() ? QStringLiteral("ファイル")
                                       : file.suffix().toUpper() + QStringLiteral(" ファイル");
    }
};

void LabelFileDialog(QFileDialog &dialog, const QString &acceptWord)
{
    static const auto types = new FileTypes;
    dialog.setIconProvider(types);
    // Without what it leads to, a label shows the mark of its key as it stands.
    for (const auto &[label, box] :
         {std::pair("lookInLabel", "lookInCombo"), std::pair("fileTypeLabel", "fileTypeCombo")})
        if (auto *found = dialog.findChild<QLabel *>(QLatin1String(label)))
            found->setBuddy(dialog.findChild<QWidget *>(QLatin1String(box)));
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("場所(&I):"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("ファイルの種類(&T):"));
    dialog.setLabelText(QFileDialog::Accept, acceptWord);
    dialog.setLabelText(QFileDialog::Reject, ButtonWord(Cancel));
}

QString StartFolder(const QString &drivePath)
{
    QString asked = drivePath.isEmpty() ? QString() : files::HostPathOrEmpty(drivePath);
    if (!asked.isEmpty() && QFileInfo(asked).isDir())
        return asked;
    return lastFolder.isEmpty() ? QDir::homePath() : lastFolder;
}

/// Asks until the choice is one that the program can name, or none. Each time with a new dialog, for
/// one that has been used keeps its selection beside what is typed next.
Reply AskForPath(const std::function<QFileDialog *()> &make, bool createPrompt,
                 const QPointer<QWidget> &parent)
{
    Reply reply;
    while (!reply.accepted) {
        const QPointer<QFileDialog> dialog(make());
        const bool isChosen = dialog->exec() == QDialog::Accepted && dialog;
        const QString chosen = isChosen ? dialog->selectedFiles().value(0) : QString();
        if (isChosen)
            lastFolder = dialog->directory().absolutePath();
        delete dialog.data();
        if (chosen.isEmpty())
            break;
        if (createPrompt && !QFileInfo::exists(chosen) && !UserWantsNewFile(chosen, parent))
            continue;
        reply.text = DrivePathOrBox(chosen, parent);
        reply.accepted = !reply.text.isEmpty();
    }
    return reply;
}

QFileDialog *MakeFileDialog(const Box &box, QWidget *parent)
{
    auto *dialog = new QFileDialog(parent, box.title, StartFolder(box.folder));
    dialog->setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite |
                       QFileDialog::HideNameFilterDetails);
    dialog->setAcceptMode(box.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(box.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    const QStringList filters = NameFilters(box.filter);
    if (!filters.isEmpty()) {
        dialog->setNameFilters(filters);
        dialog->selectNameFilter(filters.value(box.filterIndex - 1, filters.constFirst()));
    }
    LabelFileDialog(*dialog, box.save ? QStringLiteral("保存(&S)") : QStringLiteral("開く(&O)"));
    dialog->setLabelText(QFileDialog::FileName, QStringLiteral("ファイル名(&N):"));
    if (!box.defaultText.isEmpty())
        dialog->selectFile(box.defaultText);
    return dialog;
}

QFileDialog *MakeFolderDialog(const Box &box, QWidget *parent)
{
    auto *dialog = new QFileDialog(parent, box.title, StartFolder(box.folder));
    dialog->setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
    dialog->setFileMode(QFileDialog::Directory);
    LabelFileDialog(*dialog, ButtonWord(OK));
    dialog->setLabelText(QFileDialog::FileName, QStringLiteral("フォルダ(&N):"));
    return dialog;
}

Reply PresentFile(const Box &box, const QPointer<QWidget> &parent)
{
    const bool isFolder = box.kind == Box::Kind::Folder;
    return AskForPath(
        [&box, &parent, isFolder] {
            return isFolder ? MakeFolderDialog(box, parent) : MakeFileDialog(box, parent);
        },
        box.createPrompt && !isFolder, parent);
}

Reply PresentFont(const Box &box, QWidget *parent)
{
    return Run(new FontBox(box.title, box.font, parent), [](const FontBox &done) {
        Reply reply;
        reply.font = done.Choice();
        return reply;
    });
}

Reply PresentColor(const Box &box, QWidget *parent)
{
    auto *dialog = new QColorDialog(host::ColorOf(box.color), parent);
    dialog->setOptions(QColorDialog::DontUseNativeDialog);
    host::SetTitle(*dialog, box.title);
    return Run(dialog, [](const QColorDialog &done) {
        Reply reply;
        reply.color = host::BgrOf(done.selectedColor());
        return reply;
    });
}

} // namespace

QStringList NameFilters(const QString &filter)
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (QString &pattern : patterns) {
            pattern = pattern.trimmed();
            // "Every name", dot or not.
            if (pattern == QLatin1String("*.*"))
                pattern = QStringLiteral("*");
        }
        filters.append(QStringLiteral("%1 (%2)").arg(parts[i], patterns.join(QLatin1Char(' '))));
    }
    return filters;
}

Reply PresentBox(const Box &box)
{
    QWidget *parent = QApplication::activeWindow();
    switch (box.kind) {
    case Box::Kind::Input: return PresentInput(box, parent);
    case Box::Kind::File:
    case Box::Kind::Folder: return PresentFile(box, parent);
    case Box::Kind::Font: return PresentFont(box, parent);
    case Box::Kind::Color: return PresentColor(box, parent);
    case Box::Kind::Message: break;
    }
    return PresentMessage(box, parent);
}

} // namespace dialogs
