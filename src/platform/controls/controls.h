#pragma once

#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>

namespace controls
{

/// A single-line text box. Change comes for typing and for every different text that the program
/// sets; text that an input method still composes raises nothing. Lines that the user pastes become one.
class TextBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit TextBox(QWidget *parent = nullptr);
    QString Text() const { return text(); }
    void SetText(const QString &value);
    /// Puts the caret behind the last character.
    void CaretToEnd();

Q_SIGNALS:
    void Change();
    /// A key pressed, outside of composition: 13 Enter, 27 Esc, 8 Backspace, else the character's
    /// code. Setting *swallow keeps it from the box.
    void KeyPress(int character, bool *swallow);
    /// The key that moves into the list below.
    void DownPressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    class LineJoiner;

    /// Takes away the first half of a character whose second half found no room in front of the greatest
    /// length; whether there was one.
    bool DropHalfCharacter();

    bool m_composing = false;
    bool m_isSetting = false; ///< the text that comes is the program's
};

/// A drop-down box. Not editable: its text is an item's, or one that the program set.
class ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget *parent = nullptr);
    void AddItem(const QString &text);
    void Clear();
    int ListCount() const { return count(); }
    QString List(int row) const { return itemText(row); }
    int ListIndex() const { return currentIndex(); }
    QString Text() const;
    /// Shows the text, selecting the first item equal to it if there is one; raises no Click.
    void SetText(const QString &text);

Q_SIGNALS:
    /// An item was chosen, by the user or by Choose.
    void Click();
    void KeyPress(int character, bool *swallow);

public Q_SLOTS:
    /// Chooses a row as the user would.
    void Choose(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void initStyleOption(QStyleOptionComboBox *option) const override;

private:
    QString m_freeText;
};

/// A drop-down box to type into, which keeps nothing of that. The wheel changes nothing unseen.
class EditableBox : public QComboBox
{
    Q_OBJECT
public:
    explicit EditableBox(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

/// A drop-down box to type into, with the texts that were added, newest first.
class AddressBox : public EditableBox
{
    Q_OBJECT
public:
    explicit AddressBox(QWidget *parent = nullptr);
    /// Adds an item above the others; the text in the box stays.
    void AddFirst(const QString &text);

Q_SIGNALS:
    /// The user has chosen an item; its text is in the box.
    void Click();
    /// As TextBox::KeyPress.
    void KeyPress(int character, bool *swallow);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
};

/// A label that can be clicked.
class ClickLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ClickLabel(QWidget *parent = nullptr);

Q_SIGNALS:
    void Click();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// A toolbar picture: acts on mouse down. Its frame is drawn around it by the form's surface.
class Picture : public QWidget
{
    Q_OBJECT
public:
    enum class Frame { Flat, Raised, Pressed };

    explicit Picture(const QIcon &icon, QWidget *parent = nullptr);
    QSize sizeHint() const override;
    Frame CurrentFrame() const { return m_frame; }
    void SetFrame(Frame frame);
    void SetIcon(const QIcon &icon);

Q_SIGNALS:
    void MouseDown();
    void MouseMove();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    QIcon m_icon;
    Frame m_frame = Frame::Flat;
};

/// The one-panel status bar.
class StatusBar : public QLabel
{
    Q_OBJECT
public:
    explicit StatusBar(QWidget *parent = nullptr);
    QSize sizeHint() const override;
    QString SimpleText() const { return m_text; }
    void SetSimpleText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void Elide();

    QString m_text;
};

/// Qt's font of a font choice: "ＭＳ Ｐゴシック" and its kin resolve to a Japanese gothic.
QFont MakeFont(const QString &name, int points, bool bold, bool italic, bool strikeout, bool underline);
/// Qt's colour of a 0x00BBGGRR value.
QColor MakeColor(qint32 bgr);

} // namespace controls
