#include "SaveAsView.h"

#include "AppGlobals.h"
#include "PlaybackState.h"
#include "SnapshotWriter.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TavWidget.h"
#include "VideoExportPlan.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

SaveAsView::SaveAsView(QWidget* parent)
    : TavDialog("SaveAsView", parent), m_scenePage(new QWidget(form())),
      m_filePage(new QWidget(form())), m_path(new QLineEdit(m_filePage)),
      m_findPath(new QPushButton(m_filePage)), m_typeLabel(new QLabel(m_filePage)),
      m_avi(new QRadioButton(m_filePage)), m_mp4(new QRadioButton(m_filePage)),
      m_progressText(new QLabel(m_filePage)), m_progress(new QProgressBar(m_filePage)),
      m_back(new QPushButton(m_filePage)), m_save(new QPushButton(m_filePage)),
      m_stop(new QPushButton(m_filePage)), m_runner(new FfmpegRunner(this)) {
    logInfo("[SaveAsView]: Enter SaveAsView class.");
    using Style = TavWidget::Style;
    TavWidget* view = form();
    view->addChild(m_scenePage, "pageScene", Style::Panel);
    view->addChild(m_filePage, "pageFile", Style::Panel);

    // The recording as it is now.
    m_recordingPath = PlaybackState::currentFile;
    m_recordingName = QFileInfo(m_recordingPath).fileName();
    view->addChild(new QLabel(m_scenePage), "strChannel", Style::Label);
    m_channels =
        std::make_unique<ChannelChoices>(view, m_scenePage, PlaybackState::playChannelCount,
                                         [](QWidget* parent) { return new QCheckBox(parent); });
    m_channelCount = m_channels->count();
    // All cameras are chosen to begin with.
    for (int i = 0; i < m_channelCount; ++i)
        m_channels->item(i)->setChecked(true);
    auto* snapshot = new QPushButton(m_scenePage);
    auto* video = new QPushButton(m_scenePage);
    view->addChild(snapshot, "bSaveSnapshot", Style::Button);
    view->addChild(video, "bSaveVideo", Style::Button);
    video->setDefault(true);

    view->addChild(new QLabel(m_filePage), "strPath", Style::Label);
    view->addChild(m_path, "editPath", Style::Field);
    view->addChild(m_findPath, "bFindPath", Style::Button);
    view->addChild(m_typeLabel, "strType", Style::Label);
    view->addChild(m_mp4, "rMp4", Style::Choice);
    view->addChild(m_avi, "rAvi", Style::Choice);
    view->addChild(m_progressText, "progressText", Style::Label);
    view->addChild(m_progress, "progressBar", Style::Field);
    m_progress->setRange(0, 1000);
    m_progress->setTextVisible(false);
    view->addChild(m_back, "bBack", Style::Button);
    view->addChild(m_save, "bSave", Style::Button);
    view->addChild(m_stop, "bStop", Style::Button);
    m_progress->hide();
    m_stop->hide();

    // The kind of file the recording is made of is the first choice.
    const bool avi = m_recordingName.endsWith(QLatin1String(".avi"), Qt::CaseInsensitive);
    (avi ? m_avi : m_mp4)->setChecked(true);
    m_container = avi ? QStringLiteral("avi") : QStringLiteral("mp4");

    m_scenePage->show();
    m_filePage->hide();

    connect(snapshot, &QPushButton::clicked, this, [this] { onChangeMode(SnapshotMode); });
    connect(video, &QPushButton::clicked, this, [this] { onChangeMode(VideoMode); });
    connect(m_findPath, &QPushButton::clicked, this, &SaveAsView::onChangePath);
    connect(m_avi, &QRadioButton::toggled, this, &SaveAsView::onChangeType);
    connect(m_mp4, &QRadioButton::toggled, this, &SaveAsView::onChangeType);
    connect(m_back, &QPushButton::clicked, this, &SaveAsView::onChangeView);
    connect(m_save, &QPushButton::clicked, this, &SaveAsView::onShowChannelView);
    connect(m_stop, &QPushButton::clicked, this, &SaveAsView::onCancelSave);
    connect(m_runner, &FfmpegRunner::progressChanged, this, &SaveAsView::onRunnerProgress);
    connect(m_runner, &FfmpegRunner::finished, this, &SaveAsView::onRunnerFinished);
    view->retranslate();
}

SaveAsView::~SaveAsView() = default;

void SaveAsView::setImage(int channel, const QImage& image) {
    m_channels->setImage(channel, image);
}

bool SaveAsView::onFilePage() const {
    return m_filePage->isVisibleTo(this);
}

void SaveAsView::onChangeMode(int mode) {
    logDebug("SaveAsView::onChangeMode");
    if (m_channels->checked().isEmpty()) {
        TavPrompt::inform(this, tr("There is no select channel"));
        return;
    }
    m_mode = mode;
    QString* path = nullptr;
    if (mode == VideoMode) {
        path = &AppGlobals::videoPath;
        if (path->isEmpty())
            *path = AppGlobals::defaultVideoFolder();
    } else {
        path = &AppGlobals::snapshotPath;
        if (path->isEmpty())
            *path = SnapshotWriter::defaultFolder();
    }
    m_path->setText(QDir::toNativeSeparators(*path));
    // The kind of file matters only for video.
    for (QWidget* widget : {static_cast<QWidget*>(m_typeLabel), static_cast<QWidget*>(m_avi),
                            static_cast<QWidget*>(m_mp4)})
        widget->setVisible(mode == VideoMode && widget->isEnabled());
    m_progressText->clear();
    if (!onFilePage())
        onChangeView();
}

void SaveAsView::onChangePath() {
    logDebug("SaveAsView::onChangePath");
    const QString folder = TavPrompt::openFolder(this, tr("Search Folder"),
                                                 QDir::fromNativeSeparators(m_path->text()));
    if (!folder.isEmpty())
        m_path->setText(QDir::toNativeSeparators(folder));
}

void SaveAsView::onChangeType() {
    logDebug("SaveAsView::onChangeType");
    m_container = m_avi->isChecked() ? QStringLiteral("avi") : QStringLiteral("mp4");
}

void SaveAsView::onChangeView() {
    logDebug("SaveAsView::onChangeView");
    const bool toFile = !onFilePage();
    m_scenePage->setVisible(!toFile);
    m_filePage->setVisible(toFile);
    title()->setText(toFile ? tr("File Setting") : tr("Choose Save Scene"));
    if (toFile)
        m_save->setFocus();
}

void SaveAsView::onShowChannelView() {
    logDebug("SaveAsView::onShowChannelView");
    if (m_runner->isRunning())
        return;
    const QString folder = QDir::fromNativeSeparators(m_path->text().trimmed());
    if (m_mode != SnapshotMode && m_mode != VideoMode)
        return;
    if (folder.isEmpty()) {
        TavPrompt::inform(this, tr("Choose the folder to save to."));
        return;
    }
    (m_mode == SnapshotMode ? AppGlobals::snapshotPath : AppGlobals::videoPath) = folder;
    if (!QDir().mkpath(folder)) {
        TavPrompt::inform(
            this, tr("The folder %1 cannot be made.").arg(QDir::toNativeSeparators(folder)));
        return;
    }
    if (m_mode == SnapshotMode)
        saveSnapshots(folder);
    else
        saveVideo(folder);
}

void SaveAsView::saveSnapshots(const QString& folder) {
    QStringList written;
    QStringList failures;
    for (int channel : m_channels->checked()) {
        const QString path = SnapshotWriter::fileName(folder, m_recordingName, channel, m_position);
        QString error;
        if (SnapshotWriter::save(m_channels->image(channel), path, &error)) {
            written << path;
        } else {
            logWarning("[SaveAsView]: snapshot %s not saved: %s", path.toLocal8Bit().constData(),
                       error.toLocal8Bit().constData());
            failures << QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), error);
        }
    }
    if (failures.isEmpty()) {
        TavPrompt::inform(this, tr("Complete to Save Snapshot!") + fileListText(written));
        accept();
        return;
    }
    QString text = tr("Snapshot not saved:") + '\n' + failures.join('\n');
    if (!written.isEmpty())
        text += '\n' + tr("Saved:") + fileListText(written);
    TavPrompt::inform(this, text);
}

void SaveAsView::saveVideo(const QString& folder) {
    const QString program = VideoExportPlan::program(AppGlobals::programFolder);
    if (program.isEmpty()) {
        TavPrompt::inform(
            this, tr("The video cannot be saved: the ffmpeg program is missing. It belongs in %1 "
                     "or on the PATH.")
                      .arg(QDir::toNativeSeparators(
                          VideoExportPlan::shippedProgram(AppGlobals::programFolder))));
        return;
    }
    const VideoExportPlan plan(m_recordingPath, m_channelCount, m_channels->checked(), m_container,
                               folder);
    if (!plan.overwritesInput().isEmpty()) {
        TavPrompt::inform(this, tr("%1 is the recording itself. Choose another folder to save "
                                   "the video to.")
                                    .arg(QDir::toNativeSeparators(plan.overwritesInput())));
        return;
    }
    m_missing = plan.missingChannels();
    if (plan.runs().isEmpty()) {
        TavPrompt::inform(this, tr("The files of the chosen cameras are not there any more."));
        return;
    }
    const QStringList existing = plan.existingOutputs();
    if (!existing.isEmpty() &&
        !TavPrompt::ask(this, tr("These files exist already:") + fileListText(existing) + '\n' +
                                  tr("Replace them?")))
        return;
    setBusy(true);
    m_runner->start(program, plan.runs());
}

void SaveAsView::onCancelSave() {
    logDebug("SaveAsView::onCancelSave");
    m_runner->cancel();
}

void SaveAsView::onRunnerProgress(int permille) {
    m_progress->setValue(permille);
    const int run = m_runner->currentRun();
    if (run >= 0 && run < m_runner->runCount())
        m_progressText->setText(
            tr("Saving channel %1 of %2...").arg(run + 1).arg(m_runner->runCount()));
}

void SaveAsView::onRunnerFinished(FfmpegRunner::Outcome outcome) {
    setBusy(false);
    QString missing;
    for (int channel : m_missing)
        missing += '\n' + tr("Channel %1 has no file to save.").arg(channel + 1);
    switch (outcome) {
    case FfmpegRunner::Outcome::Done:
        m_progressText->clear();
        TavPrompt::inform(this, tr("Complete File Download!") + fileListText(m_runner->written()) +
                                    missing);
        accept();
        return;
    case FfmpegRunner::Outcome::Failed: {
        m_progressText->setText(tr("The video was not saved."));
        QString text = tr("The video was not saved.") + '\n' + m_runner->failure();
        if (!m_runner->written().isEmpty())
            text += '\n' + tr("Saved before that:") + fileListText(m_runner->written());
        TavPrompt::inform(this, text);
        return;
    }
    case FfmpegRunner::Outcome::Cancelled:
        m_progressText->setText(tr("Cancelled. The unfinished file was removed."));
        return;
    }
}

void SaveAsView::setBusy(bool busy) {
    m_progress->setValue(0);
    m_progress->setVisible(busy);
    m_stop->setVisible(busy);
    m_save->setVisible(!busy);
    for (QWidget* widget : {static_cast<QWidget*>(m_path), static_cast<QWidget*>(m_findPath),
                            static_cast<QWidget*>(m_avi), static_cast<QWidget*>(m_mp4),
                            static_cast<QWidget*>(m_back)})
        widget->setEnabled(!busy);
    if (busy)
        m_stop->setFocus();
}

QString SaveAsView::fileListText(const QStringList& paths) const {
    QString text;
    for (const QString& path : paths)
        text += '\n' + QDir::toNativeSeparators(path);
    return text;
}

void SaveAsView::reject() {
    if (m_runner->isRunning()) {
        if (!TavPrompt::ask(this, tr("The video is still being saved. Stop saving it?")))
            return;
        m_runner->cancel();
    }
    TavDialog::reject();
}
