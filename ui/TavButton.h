#pragma once

#include <QPushButton>

// One choice of a row of choices: checkable, and the only one checked among its siblings.
class TavButton : public QPushButton {
    Q_OBJECT
public:
    TavButton(const QString& text, QWidget* parent = nullptr);
};
