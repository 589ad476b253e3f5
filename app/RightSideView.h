#pragma once

#include "TavWidget.h"

// The panel behind the scenes and the play controls.
class RightSideView : public TavWidget {
    Q_OBJECT
public:
    explicit RightSideView(QWidget* parent = nullptr);
};
