#include "SubPlayerWindow.h"

#include "PlayerInterface.h"
#include "StatusLog.h"

#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>

SubPlayerWindow::SubPlayerWindow(int channel, QWidget* parent)
    : TavWidget("SubPlayerWindow", parent), m_scene(new QWidget(this)), m_caption(new QLabel(this)),
      m_arrow(new QPushButton(this)), m_flip(new QPushButton(this)), m_id(channel),
      m_slot(channel) {
    m_scene->setAttribute(Qt::WA_NativeWindow);
    addChild(m_scene, "sceneWidget", Style::Panel);
    placeItself(m_scene);
    addChild(m_caption, "caption", Style::Label);
    addChild(m_arrow, "arrow", Style::Button);
    addChild(m_flip, "bFlip", Style::Button);
    m_caption->setText(QStringLiteral("CAM%1").arg(channel));
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->lower();
    m_flip->setCheckable(true);
    for (QPushButton* button : {m_arrow, m_flip}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->raise();
    }
    m_normalStyle = styleSheet();
    connect(m_arrow, &QPushButton::clicked, this, [this] { emit onChangeView(m_id); });
    connect(m_flip, &QPushButton::clicked, this, [this] { emit onClickedFlip(m_id); });
}

QWidget* SubPlayerWindow::swapScene(QWidget* scene, int id) {
    logDebug("SubPlayerWindow::swapScene");
    QWidget* previous = m_scene;
    m_scene = scene;
    m_id = id;
    scene->setParent(this);
    scene->setGeometry(rect());
    scene->show();
    // The scene comes back as a new native window on top; the buttons go above it again.
    for (QPushButton* button : {m_arrow, m_flip})
        button->raise();
    // The button shows whether the camera now in this scene is mirrored.
    m_flip->setChecked(id >= 0 && id < 3 && PlayerInterface::flipState[id]);
    emit sendVideoResize(m_id, m_scene->size());
    return previous;
}

void SubPlayerWindow::onSetId(int id) {
    logDebug("SubPlayerWindow::onSetId");
    m_id = id;
}

void SubPlayerWindow::onSetTransparent(bool transparent) {
    logDebug("SubPlayerWindow::onSetTransparent");
    setStyleSheet(transparent ? QStringLiteral("SubPlayerWindow{border:none; border-image:none; "
                                               "background: rgba(0,0,0,0);}")
                              : m_normalStyle);
}

void SubPlayerWindow::onResetView(int channels) {
    logDebug("SubPlayerWindow::onResetView");
    logInfo("!!! onResetView %s %d ch Max size : %dx%d", objectName().toLocal8Bit().constData(),
            channels, width(), height());
    // This camera is part of the recording only when there are more channels than its slot.
    setVisible(channels > m_slot);
    m_flip->setChecked(false);
    m_scene->setGeometry(rect());
}

void SubPlayerWindow::onResizeView(int channels) {
    logDebug("SubPlayerWindow::onResizeView");
    logInfo("!!! onResizeView %s %d ch Max size : %dx%d", objectName().toLocal8Bit().constData(),
            channels, width(), height());
    m_scene->setGeometry(rect());
    emit sendVideoResize(m_id, m_scene->size());
}

void SubPlayerWindow::resizeEvent(QResizeEvent* event) {
    TavWidget::resizeEvent(event);
    m_scene->setGeometry(rect());
    emit sendVideoResize(m_id, m_scene->size());
}
