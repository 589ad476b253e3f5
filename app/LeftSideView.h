#pragma once

#include "TavWidget.h"

// The panel behind the file list, the type filter and the list/map switch.
class LeftSideView : public TavWidget {
    Q_OBJECT
public:
    explicit LeftSideView(QWidget* parent = nullptr);
};
