#include "TavToggleButton.h"

TavToggleButton::TavToggleButton(QWidget* parent) : QPushButton(parent) {
    setCheckable(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}
