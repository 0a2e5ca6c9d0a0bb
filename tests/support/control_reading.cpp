#include "control_reading.h"

#include "platform/browser/web_browser.h"
#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/controls/list_box.h"
#include "platform/host/plain_texts.h"
#include "script_error.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTextBlock>
#include <QTextEdit>
#include <QTreeView>

namespace
{

[[noreturn]] void HasNo(const QObject *object, const QString &what)
{
    throw ScriptError(
        QStringLiteral("%1 (%2) has no %3")
            .arg(object->objectName(), QString::fromLatin1(object->metaObject()->className()), what));
}

QString LinesWithCrLf(QString raw)
{
    for (const QChar end : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        raw.replace(end, u'\n');
    return raw.replace(u'\n', QStringLiteral("\r\n"));
}

/// The content itself: the plain text of a document has its hard blanks replaced.
QString ContentOf(const QTextDocument *document)
{
    QStringList lines;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
        lines.append(block.text());
    return LinesWithCrLf(lines.join(u'\n'));
}

QString RowText(const QAbstractItemModel &model, const QModelIndex &row)
{
    QStringList columns;
    for (int column = 0; column < model.columnCount(row.parent()); ++column)
        columns.append(row.siblingAtColumn(column).data().toString());
    return columns.join(u'\t');
}

std::optional<QString> CaptionOfWidget(const QWidget *widget)
{
    if (const auto *bar = qobject_cast<const controls::StatusBar *>(widget))
        return bar->SimpleText();
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->title();
    if (widget->isWindow())
        return host::Title(*widget);
    return std::nullopt;
}

std::optional<QString> ContentOfWidget(const QWidget *widget)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->text();
    if (const auto *plain = qobject_cast<const QPlainTextEdit *>(widget))
        return ContentOf(plain->document());
    if (const auto *rich = qobject_cast<const QTextEdit *>(widget))
        return ContentOf(rich->document());
    if (const auto *combo = qobject_cast<const controls::ComboBox *>(widget))
        return combo->Text();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentText();
    if (const auto *spin = qobject_cast<const QSpinBox *>(widget))
        return spin->text();
    if (const auto *list = qobject_cast<const controls::ListBox *>(widget))
        return list->Text();
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
        const int row = SelectedRowOf(view);
        return row < 0 ? QString() : ItemsOf(view).value(row);
    }
    return std::nullopt;
}

QPalette::ColorRole WritingRole(const QWidget *widget)
{
    if (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractScrollArea *>(widget) ||
        qobject_cast<const QComboBox *>(widget))
        return QPalette::Text;
    return widget->foregroundRole();
}

} // namespace

QModelIndexList RowsOf(const QTreeView &tree)
{
    QModelIndexList rows;
    for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row))
        rows.append(row);
    return rows;
}

QString ShownTextOf(const Target &target)
{
    if (target.action)
        return target.action->text();
    if (const auto content = ContentOfWidget(target.widget))
        return *content;
    if (const auto caption = CaptionOfWidget(target.widget))
        return *caption;
    HasNo(target.widget, QStringLiteral("text"));
}

QString SelectedTextOf(const QWidget *widget)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->selectedText();
    if (const auto *plain = qobject_cast<const QPlainTextEdit *>(widget))
        return LinesWithCrLf(plain->textCursor().selectedText());
    if (const auto *rich = qobject_cast<const QTextEdit *>(widget))
        return LinesWithCrLf(rich->textCursor().selectedText());
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return LinesWithCrLf(label->selectedText());
    if (const auto *pane = qobject_cast<const browser::WebBrowser *>(widget))
        return pane->SelectedText();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget); combo && combo->lineEdit())
        return combo->lineEdit()->selectedText();
    if (const auto *spin = qobject_cast<const QSpinBox *>(widget))
        return spin->findChild<QLineEdit *>()->selectedText();
    if (qobject_cast<const QAbstractItemView *>(widget))
        return ContentOfWidget(widget).value_or(QString());
    HasNo(widget, QStringLiteral("selected text"));
}

QString CaptionOf(const Target &target)
{
    if (target.action)
        return target.action->text();
    const std::optional<QString> caption = CaptionOfWidget(target.widget);
    if (!caption)
        HasNo(target.widget, QStringLiteral("caption"));
    return *caption;
}

QStringList ItemsOf(const QWidget *widget)
{
    if (const auto *list = qobject_cast<const controls::ListBox *>(widget))
        return list->Items();
    const QAbstractItemModel *model = nullptr;
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        model = view->model();
    else if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        model = combo->model();
    else
        HasNo(widget, QStringLiteral("items"));
    QStringList items;
    if (const auto *tree = qobject_cast<const QTreeView *>(widget)) {
        for (const QModelIndex &index : RowsOf(*tree))
            items.append(RowText(*model, index));
        return items;
    }
    for (int row = 0; row < model->rowCount(); ++row)
        items.append(RowText(*model, model->index(row, 0)));
    return items;
}

int SelectedRowOf(const QWidget *widget)
{
    if (const auto *list = qobject_cast<const controls::ListBox *>(widget))
        return list->ListIndex();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentIndex();
    if (const auto *tree = qobject_cast<const QTreeView *>(widget))
        return static_cast<int>(RowsOf(*tree).indexOf(tree->currentIndex()));
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
        const QModelIndexList rows = view->selectionModel()->selectedIndexes();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    HasNo(widget, QStringLiteral("rows"));
}

bool IsChecked(const Target &target)
{
    if (target.action)
        return target.action->isChecked();
    if (const auto *button = qobject_cast<const QAbstractButton *>(target.widget))
        return button->isChecked();
    if (const auto *group = qobject_cast<const QGroupBox *>(target.widget))
        return group->isChecked();
    HasNo(target.widget, QStringLiteral("check mark"));
}

bool IsEnabled(const Target &target)
{
    if (target.action)
        return target.action->isEnabled();
    if (target.IsForm())
        return target.form->TakesInput() && target.form->isEnabled();
    return !target.widget->testAttribute(Qt::WA_ForceDisabled);
}

bool IsVisible(const Target &target)
{
    if (target.action)
        return target.action->isVisible();
    return target.IsForm() ? target.form->isVisible() : !target.widget->isHidden();
}

QString ToolTipOf(const Target &target)
{
    return target.action ? target.action->toolTip() : target.widget->toolTip();
}

dialogs::FontChoice FontOf(const QWidget *widget)
{
    const QFont font = widget->font();
    return {.name = font.family(),
            .size = font.pointSize(),
            .color = ColorOf(widget),
            .bold = font.bold(),
            .italic = font.italic(),
            .strikeout = font.strikeOut(),
            .underline = font.underline()};
}

qint32 ColorOf(const QWidget *widget)
{
    const QColor color = widget->palette().color(QPalette::Active, WritingRole(widget));
    return color.red() | color.green() << 8 | color.blue() << 16;
}

controls::TwipRect BoundsOf(const QWidget *widget)
{
    using controls::Twips;
    return {Twips(widget->x()), Twips(widget->y()), Twips(widget->width()), Twips(widget->height())};
}
