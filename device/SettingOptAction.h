#pragma once

#include "ServiceRequest.h"

#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;
class UiDescription;

// A row of the settings dialog that does something rather than hold a value: its name, a
// line below that tells how things stand (a folder, the service's answer) and one button.
// The name and the button's text are source texts of the "SettingOpt" translations.
class SettingOptAction : public QWidget {
    Q_OBJECT
public:
    // `buttonEntry` names the button's look in the dialog's description.
    SettingOptAction(const char* name, const char* buttonText, const UiDescription& look,
                     const char* buttonEntry = "optAction", QWidget* parent = nullptr);

    QPushButton* button() const { return m_button; }
    QLabel* hint() const { return m_hint; }
    void setHint(const QString& text);
    void retranslate();

    // For a row that asks the companion service: the line says when the service is not
    // working; the button waits while a question is out; a failure is told on the row and
    // in a message.
    void showLinkState();
    void showWaiting();
    void showAnswer(const QString& text);
    void showFailure(ServiceRequest::Failure failure);

signals:
    void clicked();

private:
    const char* m_nameText;
    const char* m_buttonText;
    QLabel* m_name;
    QLabel* m_hint;
    QPushButton* m_button;
};
