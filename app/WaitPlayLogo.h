#pragma once

#include "TavWidget.h"

class QLabel;

// Shown in place of the scenes while nothing plays: the program's mark and a hint on how
// to open recordings.
class WaitPlayLogo : public TavWidget {
    Q_OBJECT
public:
    explicit WaitPlayLogo(QWidget* parent = nullptr);

private:
    QLabel* m_logo;
    QLabel* m_hint;
};
