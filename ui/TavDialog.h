#pragma once

#include <QDialog>
#include <QPoint>

class QLabel;
class QPushButton;
class TavWidget;

// A frameless dialog in the program's look, built from its view's description: the panel
// ("centralWidget", whose size the dialog takes) and the title bar ("topWidget") with the
// title ("DlgName") and the close button ("bClose", which closes as Escape does). The user
// moves it by dragging any place that is not a control.
class TavDialog : public QDialog {
    Q_OBJECT
public:
    explicit TavDialog(const QString& viewName, QWidget* parent = nullptr);

    // The view the dialog's own children are added to.
    TavWidget* form() const { return m_form; }
    QLabel* title() const { return m_title; }

protected:
    // The window takes the title's text as its name (for the window list and assistive
    // tools) unless it has one.
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    TavWidget* m_form;
    QLabel* m_title;
    bool m_dragging = false;
    QPoint m_dragOffset;
};
