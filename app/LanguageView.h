#pragma once

#include "TavDialog.h"

class QComboBox;

// The small dialog in which the user picks the interface language. A new choice replaces
// the installed translation at once and tells the main window, which has every view re-read
// its texts.
class LanguageView : public TavDialog {
    Q_OBJECT
public:
    explicit LanguageView(QWidget* parent = nullptr);

    // The language the dialogs were last built with or changed to.
    static int currentIndex;

signals:
    void onSendChangeLanguage();

public slots:
    void changeLanguage();
    void retranslateUi();

private:
    QComboBox* m_combo;
};
