#pragma once

#include "TavWidget.h"

class QLabel;
class QPushButton;

// A rear channel's scene with its caption and its buttons: flip the picture, and show this
// camera in the main scene.
class SubPlayerWindow : public TavWidget {
    Q_OBJECT
public:
    // entryName: "subPlayer1" or "subPlayer2"; the channel is 1 or 2.
    explicit SubPlayerWindow(int channel, QWidget* parent = nullptr);

    QWidget* scene() const { return m_scene; }
    // The channel shown here now, and the rear channel this window was made for.
    int id() const { return m_id; }
    int slot() const { return m_slot; }

    // Shows another channel's scene here (the scene swap); returns the scene it replaces.
    QWidget* swapScene(QWidget* scene, int id);

signals:
    void sendVideoResize(int id, QSize size);
    void onChangeView(int id);
    void onClickedFlip(int id);

public slots:
    void onSetId(int id);
    void onSetTransparent(bool transparent);
    void onResetView(int channels);
    void onResizeView(int channels);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* m_scene;
    QLabel* m_caption;
    QPushButton* m_arrow;
    QPushButton* m_flip;
    int m_id;
    int m_slot;
    QString m_normalStyle;
};
