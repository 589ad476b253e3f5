#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class CheckSDThread;
class QWidget;

// The main window's memory card: opens the card and settings dialogs, and watches the
// opened card while its recordings are listed. Whatever the dialogs and the watch find out
// leaves through this object's signals, which the main window routes to the other views;
// so does what the settings dialog's pages of the program itself report.
class CardSession : public QObject {
    Q_OBJECT
public:
    explicit CardSession(QObject* parent = nullptr);
    ~CardSession() override;

    void openCardDialog(QWidget* parent);
    void openSettingDialog(QWidget* parent);

    bool isWatching() const { return m_watch != nullptr; }

signals:
    // The recordings of a card just opened.
    void onSendSDCardFile(const QStringList& files);
    // The card at root went away or is about to be formatted: its recordings are gone.
    void onSendCardContentsGone(const QString& root);
    void onSendNotSaveSetting();
    // From the settings dialog's own pages: the language was switched; a newer version is
    // out and the user wants it.
    void onSendChangeLanguage();
    void onSendSpeedUnit(int unit);
    // The drive gap or the incident thresholds changed.
    void onSendDriveRules();
    void onSendShowUpdate(const QString& version);

private slots:
    void onCardFiles(const QStringList& files);
    void onCardGone();
    void onFormatStarting();
    void onFormatFinished();

private:
    void startWatch(const QString& root);
    void stopWatch();

    CheckSDThread* m_watch = nullptr;
    QString m_watchedRoot;
};
