#pragma once

#include "ServiceRequest.h"
#include "TavDialog.h"

class QLabel;
class QPushButton;

// The program's name, picture and version, and the question to the service whether a newer
// version is out ("Version"). When one is, its update button offers the update dialog.
class AboutView : public TavDialog {
    Q_OBJECT
public:
    explicit AboutView(QWidget* parent = nullptr);

    // The newest version the service named; empty before it answered.
    const QString& offeredVersion() const { return m_offered; }
    QLabel* stateLabel() const { return m_state; }

signals:
    // The user wants the update to the version the service named.
    void onSendShowUpdate(const QString& version);

public slots:
    void onClickUpdate();
    void onRecvMessage(const QString& message);

private:
    void retranslateUi();
    void onRequestFailed(ServiceRequest::Failure failure);

    QLabel* m_version;
    QLabel* m_state;
    QPushButton* m_check;
    QPushButton* m_download;
    // A child, so that tests find it.
    ServiceRequest m_request{this};
    QString m_offered;
};
