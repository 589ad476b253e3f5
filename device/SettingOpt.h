#pragma once

#include "SettingRecord.h"

#include <QWidget>

class QButtonGroup;
class QLabel;
class TavComboBox;
class TavToggleButton;
class UiDescription;

// One row of the settings dialog: the setting's name (and its hint, when the description
// gives one) and the control its "type" asks for:
//   0  a drop-down of its choices
//   1  an on/off switch (off is the first choice's value, on the second's; 0 and 1 without)
//   2  a row of buttons, one per choice
//   3  a text of the card itself, named by "link" (see SettingView::cardText)
// A change by the user is reported with onSendValueChanged(); setValue() shows a value
// quietly. A row whose "enable" is not true shows its value and cannot be changed.
class SettingOpt : public QWidget {
    Q_OBJECT
public:
    enum Kind { ComboKind = 0, ToggleKind = 1, ChoiceKind = 2, CardTextKind = 3 };

    SettingOpt(const SettingRecord& record, const UiDescription& look, QWidget* parent = nullptr);

    const SettingRecord& record() const { return m_record; }
    int value() const { return m_value; }
    void setValue(int value);
    void setCardText(const QString& text);
    // Whether the user may change the row now (its record allows it and the dialog does).
    void setChangeable(bool changeable);

    // Shows the name, hint and choices again in the interface language.
    void retranslate();

    // A setting's name or choice label in the interface language.
    static QString translated(const QString& text);
    // A page's title in the dialog's look.
    static QLabel* makePageTitle(const QString& text, const UiDescription& look, QWidget* parent);

signals:
    void onSendValueChanged(const QString& name, int value);

private:
    void buildControl(const UiDescription& look);
    void choose(int value);
    int toggleValue(bool on) const;

    SettingRecord m_record;
    int m_value = -1;
    QLabel* m_name;
    QLabel* m_hint = nullptr;
    QWidget* m_control = nullptr;
    TavComboBox* m_combo = nullptr;
    TavToggleButton* m_toggle = nullptr;
    QButtonGroup* m_choices = nullptr;
    QLabel* m_text = nullptr;
};
