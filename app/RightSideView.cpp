#include "RightSideView.h"

RightSideView::RightSideView(QWidget* parent) : TavWidget("RightSideView", parent) {}
