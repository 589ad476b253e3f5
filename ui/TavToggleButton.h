#pragma once

#include <QPushButton>

// An on/off switch: a checkable button whose description draws the off state as its Normal
// image and the on state as its Select image. Space and a click switch it.
class TavToggleButton : public QPushButton {
    Q_OBJECT
public:
    explicit TavToggleButton(QWidget* parent = nullptr);

    QSize sizeHint() const override { return QSize(40, 24); }
};
