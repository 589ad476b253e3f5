#include "LeftSideView.h"

LeftSideView::LeftSideView(QWidget* parent) : TavWidget("LeftSideView", parent) {}
