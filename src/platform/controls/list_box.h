#pragma once

#include <QListView>
#include <QStringList>

namespace controls
{

class ListBoxModel;

/// A list box as the platform's own: one selected row or none, Click for a mouse click and for every
/// selection moved by keys or by the program.
class ListBox : public QListView
{
    Q_OBJECT
public:
    explicit ListBox(QWidget *parent = nullptr);

    void AddItem(const QString &text);
    /// Rows beyond the list are ignored.
    void RemoveItem(int row);
    void Clear();
    int ListCount() const;
    /// Text of a row; empty beyond the list.
    QString List(int row) const;
    QStringList Items() const;
    /// The selected row from 0; -1 for none.
    int ListIndex() const;
    /// Selects a row, or none for -1, and raises Click when that changes it to a row.
    void SetListIndex(int row);
    /// Text of the selected row; empty for none.
    QString Text() const;
    /// The first row equal to the text (case ignored) behind `after`, round the end; -1 for none.
    int FindStringExact(const QString &text, int after = -1) const;

    /// Between the two, nothing is painted and the focus stays: "hidden while it is filled".
    void BeginFill();
    void EndFill();

    /// Row height in pixels; 0 until set means the font's.
    int ItemHeight() const;
    void SetItemHeight(int pixels);
    /// The width that can be scrolled to, in pixels.
    int HorizontalExtent() const;
    void SetHorizontalExtent(int pixels);
    /// Low 16 bits: the row nearest to the point (viewport pixels); high 16 bits: 1 when the point
    /// lies outside every row.
    quint32 ItemFromPoint(const QPoint &point) const;

    /// Lets the user drag the right edge; EdgeDragged tells the new width in pixels.
    void SetSizingFrame(bool on);

    /// Brings a row into sight; how far the rows are scrolled sideways is the user's alone.
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void Click();
    void DblClick();
    /// A double click where no row is.
    void DblClickBesideRows();
    /// Character code of a key pressed: 27 Esc, 13 Enter, else the character's.
    void KeyPress(int character);
    void MouseMove(const QPoint &point);
    void EdgeDragged(int width);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void updateGeometries() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool EdgeEvent(QEvent *event);
    void DragEdgeTo(int x);
    void SelectQuietly(int row);
    void PlaceGrip();
    bool TakesUserInput() const;

    ListBoxModel *m_model = nullptr;
    QWidget *m_grip = nullptr;
    int m_itemHeight = 0;
    int m_extent = 0;
    int m_dragOffset = 0;
    int m_pressedRow = -1;
    bool m_sizingFrame = false;
    bool m_dragging = false;
    bool m_quiet = false;
};

} // namespace controls
