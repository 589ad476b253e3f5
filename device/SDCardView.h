#pragma once

#include "ConfigAccess.h"

#include "TavDialog.h"

#include <QStringList>

class QTableWidget;
class TavWidget;

// The memory-card dialog: lists the removable drives that hold a camera configuration, and
// opens the one the user picks: reads its configuration, collects its recordings and sends
// their paths on with onSendSDCardFile().
class SDCardView : public TavDialog {
    Q_OBJECT
public:
    enum Column { DriveColumn, NameColumn, TotalColumn, UsedColumn, FreeColumn, ColumnCount };

    explicit SDCardView(QWidget* parent = nullptr);

    // The recordings a card holds: the MP4 and AVI files in the folders of its root (CONFIG
    // aside) whose names the camera model writes. Cameras that keep each channel in a file
    // of its own ("RAVEN1", "RAVEN2", "HERON07") are listed by their front files only.
    static QStringList cardRecordings(const QString& root, const QString& model);

    QTableWidget* table() const { return m_table; }

signals:
    void onSendSDCardFile(const QStringList& files);
    void onSendStopThread();
    void onSendStopSDCheck();

public slots:
    void onClicked_bOpenFolder();
    void onClicked_Item();
    void loadMemory();
    void retranslateUi();

private:
    bool isValidMemory(const QString& drive) const;
    // Lets the user try again after an open that did not close the dialog.
    void releaseOpen();

    TavWidget* m_form;
    QTableWidget* m_table;
    ConfigAccess m_config;
    QString m_drive;
    bool m_once = false;
};
