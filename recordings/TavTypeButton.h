#pragma once

#include <QPushButton>

// A toggle for one recording type of the type filter. Its fileType is the type's filter
// bit (1 Infinity, 2 Event, 4 Parking, 8 User). It starts checked.
class TavTypeButton : public QPushButton {
    Q_OBJECT
public:
    explicit TavTypeButton(QWidget* parent = nullptr, int fileType = 0);

    int fileType() const { return m_fileType; }
    void setFileType(int fileType) { m_fileType = fileType; }

signals:
    void onSendCheckedType(int fileType);

public slots:
    // Flips the checked state and tells which type was clicked.
    void onClickedButton();

protected:
    // A click's flip is onClickedButton's; Qt's own would flip it twice.
    void nextCheckState() override {}

private:
    int m_fileType;
};
