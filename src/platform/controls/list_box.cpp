#include "platform/controls/list_box.h"

#include "platform/controls/key_character.h"
#include "platform/controls/list_box_model.h"
#include "platform/controls/white_base.h"
#include "platform/host/plain_texts.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace controls
{

namespace
{

constexpr int kGripWidth = 4;
constexpr int kNarrowest = 40;
constexpr int kRoomBetweenRows = 2;

/// Draws a row as one line, whatever its text holds, all rows being of one size.
class RowDelegate : public QStyledItemDelegate
{
public:
    explicit RowDelegate(ListBox *list) : QStyledItemDelegate(list), m_list(list) {}

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {m_list->HorizontalExtent(), m_list->ItemHeight()};
    }
    QString displayText(const QVariant &value, const QLocale &) const override
    {
        QString text = value.toString();
        for (QChar &character : text)
            if (character.category() == QChar::Other_Control)
                character = QLatin1Char(' ');
        return text;
    }

private:
    ListBox *m_list;
};

/// What shows the user that the right edge can be dragged. The list itself handles the mouse.
class Grip : public QWidget
{
public:
    explicit Grip(ListBox *list) : QWidget(list) { setCursor(Qt::SplitHCursor); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Window));
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(0, 0, 0, height());
        painter.drawLine(width() - 1, 0, width() - 1, height());
        painter.setPen(palette().color(QPalette::Dark));
        constexpr int dots = 5, dotDistance = 4;
        const int top = height() / 2 - dots / 2 * dotDistance;
        for (int i = 0; i < dots; ++i)
            painter.fillRect(1, top + i * dotDistance, 2, 2, palette().color(QPalette::Dark));
    }
};

bool MovesSelection(int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Space: return true;
    default: return false;
    }
}

} // namespace

ListBox::ListBox(QWidget *parent) : QListView(parent)
{
    // Not among the initialisers: a child that comes is an event, which wants the other members.
    m_model = new ListBoxModel(this);
    UseWhiteBase(*this);
    setModel(m_model);
    setItemDelegate(new RowDelegate(this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setDragEnabled(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    viewport()->setMouseTracking(true);
}

void ListBox::AddItem(const QString &text) { m_model->Append(text); }

void ListBox::RemoveItem(int row)
{
    if (row < 0 || row >= ListCount())
        return;
    const QScopedValueRollback quiet(m_quiet, true);
    const bool wasSelected = !m_model->IsFilling() && row == ListIndex();
    m_model->Remove(row);
    // The view moves the selection to a neighbour; a list box has none then.
    if (wasSelected)
        SelectQuietly(-1);
}

void ListBox::Clear()
{
    const QScopedValueRollback quiet(m_quiet, true);
    m_model->Clear();
}

int ListBox::ListCount() const { return static_cast<int>(m_model->Rows().size()); }

QString ListBox::List(int row) const { return m_model->Rows().value(row); }

QStringList ListBox::Items() const { return m_model->Rows(); }

int ListBox::ListIndex() const
{
    if (m_model->IsFilling())
        return -1;
    const QItemSelection selection = selectionModel()->selection();
    return selection.isEmpty() ? -1 : selection.constFirst().top();
}

void ListBox::SelectQuietly(int row)
{
    const QScopedValueRollback quiet(m_quiet, true);
    const QModelIndex index = m_model->index(row, 0);
    if (index.isValid())
        setCurrentIndex(index);
    else
        selectionModel()->clear();
}

void ListBox::SetListIndex(int row)
{
    if (m_model->IsFilling() || row >= ListCount())
        return;
    const bool changes = row != ListIndex();
    SelectQuietly(row);
    if (changes && row >= 0)
        Q_EMIT Click();
}

QString ListBox::Text() const { return List(ListIndex()); }

int ListBox::FindStringExact(const QString &text, int after) const
{
    const QStringList &rows = m_model->Rows();
    const qsizetype count = rows.size();
    const qsizetype first = after < 0 || after >= count ? 0 : after + 1;
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype row = (first + i) % count;
        if (rows[row].compare(text, Qt::CaseInsensitive) == 0)
            return static_cast<int>(row);
    }
    return -1;
}

void ListBox::BeginFill()
{
    if (m_model->IsFilling())
        return;
    setUpdatesEnabled(false);
    m_model->BeginFill();
}

void ListBox::EndFill()
{
    if (!m_model->IsFilling())
        return;
    {
        const QScopedValueRollback quiet(m_quiet, true);
        m_model->EndFill();
        verticalScrollBar()->setValue(0);
    }
    setUpdatesEnabled(true);
}

int ListBox::ItemHeight() const
{
    return m_itemHeight > 0 ? m_itemHeight : fontMetrics().height() + kRoomBetweenRows;
}

void ListBox::SetItemHeight(int pixels)
{
    m_itemHeight = pixels;
    scheduleDelayedItemsLayout();
}

int ListBox::HorizontalExtent() const { return m_extent; }

void ListBox::SetHorizontalExtent(int pixels)
{
    m_extent = pixels;
    scheduleDelayedItemsLayout();
}

quint32 ListBox::ItemFromPoint(const QPoint &point) const
{
    constexpr quint32 outside = 1U << 16;
    constexpr quint32 lowBits = 0xFFFF;
    const int count = m_model->rowCount();
    if (count == 0)
        return outside | lowBits;
    const QRect first = visualRect(m_model->index(0, 0));
    const int below = point.y() - first.top();
    const int row = below < 0 ? -1 : below / qMax(1, first.height());
    const bool inside = viewport()->rect().contains(point) && row >= 0 && row < count;
    const quint32 nearest = static_cast<quint32>(qBound(0, row, count - 1)) & lowBits;
    return inside ? nearest : nearest | outside;
}

void ListBox::SetSizingFrame(bool on)
{
    m_sizingFrame = on;
    if (on && !m_grip) {
        m_grip = new Grip(this);
        for (const QScrollBar *bar : {verticalScrollBar(), horizontalScrollBar()})
            bar->parentWidget()->installEventFilter(this);
    }
    if (m_grip)
        m_grip->setVisible(on);
    PlaceGrip();
}

void ListBox::PlaceGrip()
{
    if (!m_grip)
        return;
    m_grip->setGeometry(width() - kGripWidth, 0, kGripWidth, height());
    m_grip->raise();
}

bool ListBox::TakesUserInput() const { return !m_model->IsFilling(); }

bool ListBox::event(QEvent *event)
{
    // The viewport's events do not pass here; what the grip leaves alone does.
    if (m_sizingFrame && EdgeEvent(event))
        return true;
    const bool handled = QListView::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        PlaceGrip();
    return handled;
}

bool ListBox::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    // Markup in a row is text like any other, and a long row is broken into lines.
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), host::ToolTipOf(toolTip()), viewport(),
                       visualRect(indexAt(help->pos())));
    return true;
}

void ListBox::updateGeometries()
{
    QListView::updateGeometries();
    // A step sideways is some letters, not a whole row.
    constexpr int letters = 4;
    horizontalScrollBar()->setSingleStep(letters * fontMetrics().averageCharWidth());
}

void ListBox::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const int left = horizontalScrollBar()->value();
    QListView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(left);
}

bool ListBox::EdgeEvent(QEvent *event)
{
    const auto type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease)
        return false;
    const auto *mouse = static_cast<const QMouseEvent *>(event);
    const int x = mouse->position().toPoint().x();
    if (type == QEvent::MouseButtonPress) {
        if (mouse->button() != Qt::LeftButton || x < width() - kGripWidth)
            return false;
        m_dragging = true;
        m_dragOffset = width() - x;
    } else if (!m_dragging) {
        return false;
    } else if (type == QEvent::MouseMove && mouse->buttons().testFlag(Qt::LeftButton)) {
        DragEdgeTo(x);
    } else {
        m_dragging = false;
    }
    return true;
}

void ListBox::DragEdgeTo(int x)
{
    const QWidget *parent = parentWidget();
    const int widest = parent ? qMax(kNarrowest, parent->width() - geometry().left()) : maximumWidth();
    const int wanted = qBound(kNarrowest, x + m_dragOffset, qMax(kNarrowest, qMin(widest, maximumWidth())));
    if (wanted == width())
        return;
    resize(wanted, height());
    Q_EMIT EdgeDragged(wanted);
}

bool ListBox::eventFilter(QObject *watched, QEvent *event)
{
    // Every layout puts the scroll bars on top.
    if (event->type() == QEvent::ZOrderChange && m_grip && watched != m_grip)
        m_grip->raise();
    return QListView::eventFilter(watched, event);
}

void ListBox::mousePressEvent(QMouseEvent *event)
{
    m_pressedRow = -1;
    if (event->button() != Qt::LeftButton || !TakesUserInput())
        return;
    const int row = indexAt(event->position().toPoint()).row();
    if (row < 0)
        return;
    m_pressedRow = row;
    SelectQuietly(row);
    Q_EMIT Click();
}

void ListBox::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const bool drags = m_pressedRow >= 0 && event->buttons().testFlag(Qt::LeftButton) && TakesUserInput();
    if (drags) {
        const int row = static_cast<int>(
            ItemFromPoint({qBound(0, point.x(), viewport()->width() - 1), point.y()}) & 0xFFFF);
        if (row != ListIndex() && row < ListCount())
            SetListIndex(row);
    }
    Q_EMIT MouseMove(point);
}

void ListBox::mouseReleaseEvent(QMouseEvent *) { m_pressedRow = -1; }

void ListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !TakesUserInput())
        return;
    if (indexAt(event->position().toPoint()).isValid())
        Q_EMIT DblClick();
    else
        Q_EMIT DblClickBesideRows();
}

void ListBox::keyPressEvent(QKeyEvent *event)
{
    const int character = CharacterOf(*event);
    if (!TakesUserInput())
        return;
    if (character >= 0)
        Q_EMIT KeyPress(character);
    if (character == 13 || character == 27) {
        // The form's buttons may want them.
        event->ignore();
        return;
    }
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        horizontalScrollBar()->triggerAction(event->key() == Qt::Key_Left
                                                 ? QAbstractSlider::SliderSingleStepSub
                                                 : QAbstractSlider::SliderSingleStepAdd);
        event->accept();
        return;
    }
    const int before = ListIndex();
    if (before < 0 && MovesSelection(event->key()) && ListCount() > 0) {
        SelectQuietly(event->key() == Qt::Key_End ? ListCount() - 1 : 0);
        event->accept();
    } else {
        const QScopedValueRollback quiet(m_quiet, true);
        QListView::keyPressEvent(event);
    }
    const int after = ListIndex();
    if (after >= 0 && after != before)
        Q_EMIT Click();
}

void ListBox::leaveEvent(QEvent *event)
{
    QListView::leaveEvent(event);
    // What stood over a row must not show over the next control.
    setToolTip(QString());
}

void ListBox::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    // From outside of the program's and the user's own ways, a screen reader for one.
    if (!m_quiet && !selected.isEmpty())
        Q_EMIT Click();
}

} // namespace controls
