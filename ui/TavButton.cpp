#include "TavButton.h"

TavButton::TavButton(const QString& text, QWidget* parent) : QPushButton(text, parent) {
    setCheckable(true);
    setAutoExclusive(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}
