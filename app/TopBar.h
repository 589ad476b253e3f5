#pragma once

#include "TavWidget.h"

class QLabel;
class QPushButton;

// The title bar of the frameless window: program name, the playing recording's name, and
// the always-on-top, minimise, maximise, full-screen and close buttons. A double click
// maximises or restores; dragging it moves the window (the frameless helper sees the
// presses this bar leaves alone).
class TopBar : public TavWidget {
    Q_OBJECT
public:
    explicit TopBar(QWidget* parent = nullptr);

    QString fileName() const;

signals:
    void onClickMaximized();
    void onClickMinimized();
    void onClick_bFullScreen();
    void onClickAlwaysViewTop();
    void onSendUpdate(bool);
    void onClickClose();

public slots:
    // 1: the window stays on top; 0: it does not.
    void onChangeAlwaysTopUi(int state);
    // The coordinator's current recording.
    void setFileName();
    void unsetFileName();
    // Maximise shows "restore" while the window is maximised or full screen.
    void onWindowStateChanged(Qt::WindowStates state);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QLabel* m_title;
    QLabel* m_fileName;
    QPushButton* m_alwaysTop;
    QPushButton* m_minimize;
    QPushButton* m_maximize;
    QPushButton* m_fullScreen;
    QPushButton* m_close;
};
