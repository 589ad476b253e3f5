#pragma once

#include "SettingRecord.h"
#include "UiDescription.h"

#include <QList>
#include <QWidget>

#include <initializer_list>

class QLabel;
class QVBoxLayout;

// A page of the settings dialog's part for the program itself: a title in the dialog's
// look (from the description entry `titleEntry`) and rows below it, from the top.
class SettingOptPage : public QWidget {
    Q_OBJECT
public:
    // Shows the page's texts again in the interface language.
    virtual void retranslate();

protected:
    SettingOptPage(const QString& objectName, const char* titleEntry, QWidget* parent);

    // The rows, in order, under the title.
    void addRows(std::initializer_list<QWidget*> rows) { addRows(QList<QWidget*>(rows)); }
    void addRows(const QList<QWidget*>& rows);
    // The dialog's description, for the rows' look.
    const UiDescription& look() const { return m_look; }
    // A setting of the program itself, shown as a camera's setting row is; `name` and
    // `hint` are source texts of the "SettingOpt" translations.
    static SettingRecord record(const char* name, int type,
                                const QVector<SettingRecord::Choice>& choices = {},
                                const char* hint = "");

private:
    UiDescription m_look;
    const char* m_titleEntry;
    QVBoxLayout* m_rows;
    QLabel* m_title;
};
