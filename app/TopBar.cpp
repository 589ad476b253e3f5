#include "TopBar.h"

#include "PlaybackState.h"
#include "StatusLog.h"

#include <QFileInfo>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

TopBar::TopBar(QWidget* parent)
    : TavWidget("TopBar", parent), m_title(new QLabel(this)), m_fileName(new QLabel(this)),
      m_alwaysTop(new QPushButton(this)), m_minimize(new QPushButton(this)),
      m_maximize(new QPushButton(this)), m_fullScreen(new QPushButton(this)),
      m_close(new QPushButton(this)) {
    addChild(m_title, "title", Style::Label);
    addChild(m_fileName, "fileName", Style::Label);
    m_fileName->setAlignment(Qt::AlignCenter);
    addChild(m_alwaysTop, "bAlwaysTop", Style::Button);
    addChild(m_minimize, "bMinimize", Style::Button);
    addChild(m_maximize, "bMaximize", Style::Button);
    addChild(m_fullScreen, "bFullScreen", Style::Button);
    addChild(m_close, "bClose", Style::Button);
    m_alwaysTop->setCheckable(true);
    m_maximize->setCheckable(true);
    m_fullScreen->setCheckable(true);
    for (QPushButton* button : {m_alwaysTop, m_minimize, m_maximize, m_fullScreen, m_close})
        button->setFocusPolicy(Qt::NoFocus);

    connect(m_alwaysTop, &QPushButton::clicked, this, &TopBar::onClickAlwaysViewTop);
    connect(m_minimize, &QPushButton::clicked, this, &TopBar::onClickMinimized);
    connect(m_maximize, &QPushButton::clicked, this, &TopBar::onClickMaximized);
    connect(m_fullScreen, &QPushButton::clicked, this, &TopBar::onClick_bFullScreen);
    connect(m_close, &QPushButton::clicked, this, &TopBar::onClickClose);
    retranslate();
}

QString TopBar::fileName() const {
    return m_fileName->text();
}

void TopBar::onChangeAlwaysTopUi(int state) {
    logDebug("TopBar::onChangeAlwaysTopUi");
    m_alwaysTop->setChecked(state != 0);
}

void TopBar::setFileName() {
    logDebug("TopBar::setFileName");
    m_fileName->setText(QFileInfo(PlaybackState::currentFile).fileName());
}

void TopBar::unsetFileName() {
    logDebug("TopBar::unsetFileName");
    m_fileName->clear();
}

void TopBar::onWindowStateChanged(Qt::WindowStates state) {
    m_maximize->setChecked(state & Qt::WindowMaximized);
    m_fullScreen->setChecked(state & Qt::WindowFullScreen);
}

void TopBar::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit onClickMaximized();
}
