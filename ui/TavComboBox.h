#pragma once

#include <QComboBox>

// A drop-down of choices in the program's look. It takes the mouse wheel only once it has
// the focus, so that scrolling a page of settings past it never changes a value.
class TavComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit TavComboBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
