#pragma once

#include <QWidget>

#include <array>

class TavTypeButton;

// The type filter's pop-up: one toggle per recording type ("infinity", "event", "park",
// "user" in its description). Every toggle click reads all four into a mask (1 Infinity,
// 2 Event, 4 Parking, 8 User) and sends it. All four start on (mask 15).
class TavTypeList : public QWidget {
    Q_OBJECT
public:
    explicit TavTypeList(QWidget* parent = nullptr);

    int mask() const;
    bool isListShown() const { return m_shown; }
    // The toggle of a type bit (1, 2, 4 or 8); null for anything else.
    TavTypeButton* toggle(int typeBit) const;

signals:
    // 1 when the pop-up has opened, 0 when it has closed.
    void onSendTypeListSet(int shown);
    void onSendCurrentType(int type);

public slots:
    // Opens the pop-up when it is closed, closes it when it is open.
    void onControlTypeList();
    void onHideTypeList();
    void onSetData();
    void onChangeLanguage();
    // The toggles show mask, chosen elsewhere; nothing is sent.
    void onSetMask(int mask);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* m_back;
    std::array<TavTypeButton*, 4> m_toggles;
    bool m_shown = false;
};
