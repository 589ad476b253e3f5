#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class TavWidget;

// The small dialog in which the user picks the interface language. A new choice replaces
// the installed translation at once and tells the main window, which has every view re-read
// its texts.
class LanguageView : public QDialog {
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
    TavWidget* m_form;
    QComboBox* m_combo;
};
