#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;

// The type filter's face above the file list: "  All Type" when every type is chosen,
// otherwise "  Filter" followed by the icons of the chosen types (Infinity, Event,
// Parking, User in that order). A click asks for the pop-up (TavTypeList). The mask it
// holds goes to the list's onSortFile through onSendFileTypeFilter.
class TavFileComboBox : public QWidget {
    Q_OBJECT
public:
    explicit TavFileComboBox(QWidget* parent = nullptr);

    int mask() const { return m_mask; }
    int chosenCount() const { return m_count; }
    // 0 while the text is "  All Type", 1 while it is "  Filter".
    int textState() const { return m_textState; }

signals:
    void onClickCombBox();
    void onSendTypeListControl();
    void onSendFileTypeFilter(int mask);

public slots:
    // Shows the current choice and sends the mask to the list again.
    void onUpdateList();
    // Takes a new mask, then as onUpdateList.
    void onUpdateSetData(int data);
    // The open-list button shows whether the pop-up is open.
    void onUpdateButton();
    // Told by the pop-up whether it is open (1) or closed (0).
    void onUpdateListState(int shown);
    void onChangeLanguage();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void requestList();

    QWidget* m_back;
    QLabel* m_text;
    std::array<QLabel*, 4> m_icons;
    QPushButton* m_open;
    int m_mask = 15;
    int m_count = 4;
    int m_textState = 0;
    bool m_listShown = false;
};
