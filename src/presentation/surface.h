#pragma once

#include <QWidget>

class frmFind;

/// The main window below its menu bar. It carries the controls, and draws the frames around them.
class Surface : public QWidget
{
    Q_OBJECT
public:
    explicit Surface(frmFind &window);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    frmFind &m_window;
};
