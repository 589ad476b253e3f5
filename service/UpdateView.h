#pragma once

#include "ServiceRequest.h"
#include "TavDialog.h"

class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;

// Downloads a newer version through the service. "Download" starts it; the service may
// answer "wait" while it is busy, which is acknowledged with "DownloadWaiting", until it
// answers "complete" or "fail". A complete download ends the dialog with result 1: the
// program then closes so that the new version can be installed. The dialog also keeps the
// choice whether the program checks for updates at its start (the "agreement" setting,
// which the service is told of with "updateAgreement").
class UpdateView : public TavDialog {
    Q_OBJECT
public:
    // `offered` is the version the service named, or empty when it is not known.
    explicit UpdateView(const QString& offered = QString(), QWidget* parent = nullptr);

    QLabel* stateLabel() const { return m_state; }
    bool isDownloading() const { return m_downloading; }

public slots:
    void onClickDownload();
    void onRecvMessage(const QString& message);
    void onChangeUpdateCheck(bool checked);

private:
    void onRequestFailed(ServiceRequest::Failure failure);
    void setDownloading(bool downloading);

    QLabel* m_state;
    QCheckBox* m_updateCheck;
    QProgressBar* m_progress;
    QPushButton* m_download;
    // A child, so that tests find it.
    ServiceRequest m_request{this};
    bool m_downloading = false;
};
