#pragma once

#include "ChannelChoices.h"
#include "FfmpegRunner.h"
#include "TavDialog.h"

#include <QImage>

#include <memory>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

// Saves the playing recording's cameras: the pictures they showed when the dialog was
// opened (JPEG snapshots), or their video, copied by ffmpeg.
//
// The first page ("Choose Save Scene") picks the cameras and what to save; the second
// ("File Setting") the folder and, for video, the kind of file. Video is copied in the
// background with a progress bar and can be cancelled; nothing half-written is kept.
class SaveAsView : public TavDialog {
    Q_OBJECT
public:
    enum Mode { NoMode = 0, SnapshotMode = 1, VideoMode = 2 };
    // Takes the playing recording (its path and number of cameras) as it is now, so that a
    // recording that starts meanwhile changes nothing here.
    explicit SaveAsView(QWidget* parent = nullptr);
    ~SaveAsView() override;

    // The picture a camera showed and the position (0..1) it was taken at.
    void setImage(int channel, const QImage& image);
    void setPosition(double position) { m_position = position; }

    int mode() const { return m_mode; }
    QString containerType() const { return m_container; }
    bool onFilePage() const;
    FfmpegRunner* runner() const { return m_runner; }

public slots:
    // bSaveSnapshot / bSaveVideo: checks that a camera is chosen and opens the file page.
    void onChangeMode(int mode);
    // bFindPath: a folder chooser for the path field.
    void onChangePath();
    // rAvi / rMp4.
    void onChangeType();
    // Between the two pages.
    void onChangeView();
    // bSave: writes the snapshots or starts the video copies.
    void onShowChannelView();
    // bStop: stops the video copies.
    void onCancelSave();
    // Closing while video is being saved asks first, and cancels.
    void reject() override;

private:
    void saveSnapshots(const QString& folder);
    void saveVideo(const QString& folder);
    void onRunnerProgress(int permille);
    void onRunnerFinished(FfmpegRunner::Outcome outcome);
    void setBusy(bool busy);
    QString fileListText(const QStringList& paths) const;

    QWidget* m_scenePage;
    QWidget* m_filePage;
    std::unique_ptr<ChannelChoices> m_channels;
    QLineEdit* m_path;
    QPushButton* m_findPath;
    QLabel* m_typeLabel;
    QRadioButton* m_avi;
    QRadioButton* m_mp4;
    QLabel* m_progressText;
    QProgressBar* m_progress;
    QPushButton* m_back;
    QPushButton* m_save;
    QPushButton* m_stop;
    FfmpegRunner* m_runner;

    QString m_recordingPath;
    QString m_recordingName;
    int m_channelCount = 0;
    double m_position = 0;
    int m_mode = NoMode;
    QString m_container;
    QList<int> m_missing;
};
