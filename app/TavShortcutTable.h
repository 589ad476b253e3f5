#pragma once

#include "TavWidget.h"

#include <QVector>

class QPushButton;

// The column of shortcut buttons beside the scenes. Buttons whose views are not in the
// program are absent from the description and stay hidden.
class TavShortcutTable : public TavWidget {
    Q_OBJECT
public:
    explicit TavShortcutTable(QWidget* parent = nullptr);

signals:
    void onSendSignalFile();
    void onSendSignalFolder();
    void onSendSignalMemory();
    void onSendSignalPrint();
    void onSendSignalLanguage();
    void onSendCapture();
    void onSendSignalSetting();
    void onSendSignalAbout();

public slots:
    void onChangeToolTipLanguage();
    // After a dialog that a button opened: every button looks as it does without the pointer
    // on it (the pointer's leaving went to the dialog). The dialog's result is not used.
    void setBackUi(int result);

private:
    struct Shortcut {
        QPushButton* button;
        const char* name;
        const char* toolTip;
    };
    QVector<Shortcut> m_shortcuts;
};
