#pragma once

#include "ConfigGroup.h"

#include <QByteArray>
#include <QDir>
#include <QObject>
#include <QString>

class FileFormatThread;
class WaitAlertView;
class QWidget;

// The camera's configuration file CONFIG/config.bin on the opened memory card: reads it into
// the groups its model's description lays out, writes the edited values back, and runs the
// card format that keeps it.
//
// The card dialog, the settings dialog and the main window share one current card, so the
// card's state is process-wide.
class ConfigAccess : public QObject {
    Q_OBJECT
public:
    enum ReadResult {
        ReadOk = 0,
        ReadFailed = -1,    // the file could not be read
        ModelUnknown = -2,  // its model is not described
        ChecksumWrong = -3, // the check byte does not match
        FileMissing = -4    // there is no CONFIG/config.bin
    };

    // On "D21" cards the firmware build is item 24 of group 4; the settings dialog offers
    // battery protection only from build 115 on.
    static constexpr int kSpecialGroup = 3;
    static constexpr int kSpecialItem = 23;
    static constexpr int kSpecialMinimum = 115;

    static QByteArray rawHeader; // the five header blocks as last read, written back as they are
    static QString identityText;
    static QString identitySuffix; // its last four characters
    static QString modelText;
    static QString versionText;          // of a card that names its model
    static QString secondaryVersionText; // of one that does not
    static quint8 checkByte;
    static ConfigGroups groups;
    static qint32 specialValue;
    static QString cardRoot; // the opened card's root, set by the card dialog
    // Set while a card is watched for removal.
    static bool cardThreadRunning;

    explicit ConfigAccess(QObject* parent = nullptr);
    ~ConfigAccess() override;

    // Reads root's CONFIG/config.bin; one of ReadResult.
    qint32 readConfig(const QDir& root);

    // Replaces the groups by the model's layout (values 0) when configStr.json describes
    // modelText; false otherwise.
    bool getModelConfigStruct();

    // Writes the header and the groups back to the opened card. Only the card the card
    // dialog opened is written; a write that does not hold puts the previous bytes back. The
    // user is told of any failure. Returns whether the card now holds the new values.
    bool writeMemory();

    // Starts the card format (mode 1) in its thread under a wait dialog; returns 0, or -1
    // when a format is already running.
    int FileFormat(QWidget* parent = nullptr);

    // root + "/CONFIG/config.bin" with forward slashes.
    static QString configPath(const QString& root);
    // The item of that name in the groups, or null.
    static ConfigGroup::Item* findItem(const QString& name);
    // The message the card dialog shows for a read result; empty for ReadOk.
    static QString readResultText(int result);

    // The thread of the running format (null when none); for tests.
    FileFormatThread* formatThread() const { return m_thread; }

signals:
    void onSendThreadStop();
    void onSendFileFormatFinished();
    void onSendInitializeFinished();

public slots:
    void onFinishThread(int errorcode);
    void onThreadDetail(const QString& detail);

private:
    static QString formatFailureLog(int mode, int code);

    FileFormatThread* m_thread = nullptr;
    WaitAlertView* m_wait = nullptr;
    QString m_detail;
};
