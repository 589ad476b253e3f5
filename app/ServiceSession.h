#pragma once

#include "ServiceRequest.h"

#include <QObject>
#include <QString>

class LocalSocket;
class QWidget;

// The main window's companion service: makes the program's link and greets the service,
// asks for a newer version once the window shows, acts on what the service answers the
// main window, opens the about and update dialogs, and says goodbye at the end.
class ServiceSession : public QObject {
    Q_OBJECT
public:
    // Makes the link (LocalSocket::link) and connects it; `window` is the main window.
    explicit ServiceSession(QWidget* window);
    ~ServiceSession() override;

    // Sends the program's version when the user allowed update checks and the service is
    // there. The answer comes to onRecvMessage().
    void startVersionCheck();
    // "GoodbyeLauncher" (always attempted) and the link closed.
    void close();

public slots:
    void openAboutDialog();
    void openUpdateDialog(const QString& version);
    // The service's answers to the main window.
    void onRecvMessage(const QString& message);
    void onUpdateDlgFinished(int result);

signals:
    // An update was downloaded; the program closes so that it can be installed.
    void onSendQuitForUpdate();

private:
    void closeForUpdate();
    void onRequestFailed(ServiceRequest::Failure failure);
    QWidget* dialogParent() const;

    QWidget* m_window;
    LocalSocket* m_link;
    // A child, so that tests find it.
    ServiceRequest m_request{this};
    // The user asked for a download: its failure is told.
    bool m_downloadAsked = false;
};
