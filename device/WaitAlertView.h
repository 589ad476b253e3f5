#pragma once

#include <QDialog>

class TavWidget;

// A small frameless box that covers the program while a long card operation runs: it says
// what is going on and shows that work continues. It has no buttons; its owner closes it.
class WaitAlertView : public QDialog {
    Q_OBJECT
public:
    explicit WaitAlertView(QWidget* parent = nullptr);

protected:
    // Escape must not close it while the card is being formatted.
    void reject() override {}

private:
    TavWidget* m_form;
};
