#include "FileFormatThread.h"

#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFolders.h"
#include "ConfigAccess.h"
#include "ProcessPriority.h"
#include "StatusLog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

#include <memory>

std::atomic<bool> FileFormatThread::busy{false};

namespace {

// Unmounting and mounting answer within seconds; a tool that hangs must not hold the card.
constexpr int kToolLimitMs = 60000;

QString fromLocal(const std::string& text) {
    return QString::fromLocal8Bit(text.c_str());
}

} // namespace

FileFormatThread::FileFormatThread(QObject* parent) : QThread(parent) {}

FileFormatThread::~FileFormatThread() {
    logInfo("call exit fileformat thread");
    if (isRunning()) {
        exit(0);
        // The run ends right after its last report; it must not outlive this object.
        wait();
    }
}

QStringList FileFormatThread::formatterArguments(const QString& label, const QString& target) {
    return {"-F", "32", "-n", label, "-s", "64", target};
}

void FileFormatThread::finishmkdos(int, QProcess::ExitStatus) {
    logDebug("FileFormatThread::finishmkdos");
}

void FileFormatThread::stopThread() {
    logDebug("FileFormatThread::stopThread");
    busy = false;
}

void FileFormatThread::fail(int code, const QString& detail) {
    if (!detail.isEmpty())
        emit threadDetail(detail);
    emit threadFinished(code);
    // Deliberately not a return: the remaining steps still run.
    exit(0);
}

void FileFormatThread::run() {
    logDebug("FileFormatThread::run");
    busy = true;
    m_keptFolder.clear();
    m_root = ConfigAccess::cardRoot;
    const QString saved = AppGlobals::dataFolder + "/CONFIG";
    const QString cardConfig = m_root + "/CONFIG";

    // 1. Save the configuration.
    if (!CardFolders::copyFolder(cardConfig, saved, m_mode))
        fail(SaveFailed);

    // 2. Format, unless something the mode keeps is not saved.
    if (!CardFolders::holdsCopy(cardConfig, saved, m_mode)) {
        fail(NotFormatted,
             tr("The SD card was not formatted: its configuration could not be saved."));
    } else {
        QString detail;
        switch (formatCard(ConfigAccess::modelText.left(kLabelLength), &detail)) {
        case NotStarted:
            fail(NotFormatted, detail);
            break;
        case Failed:
            fail(FormatterFailed, detail);
            // What the formatter left is emptied, so that the configuration goes back onto
            // a clean card.
            if (!CardDrives::isSafeCardRoot(m_root) || !CardFolders::removeContents(m_root + '/'))
                fail(ClearFailed);
            break;
        case Formatted:
            break;
        }
    }

    // 3. Put the configuration back, unless the card still holds it.
    const QString restored = m_root + "/CONFIG";
    bool putBack = true;
    if (!QDir(restored).exists() ||
        !CardFolders::holdsCopy(saved, restored, CardFolders::AllFiles)) {
        putBack = CardDrives::isSafeCardRoot(m_root) &&
                  CardFolders::copyFolder(saved, restored, CardFolders::AllFiles);
    }

    // 4. Let go of the saved copy only once the card holds it.
    if (putBack && QDir(restored).exists() &&
        CardFolders::holdsCopy(saved, restored, CardFolders::AllFiles)) {
        if (!CardFolders::removeFolder(saved))
            fail(SaveFailed);
    } else {
        const QString kept = keepSavedConfig(saved);
        fail(RestoreFailed,
             kept.isEmpty()
                 ? tr("The configuration could not be put back on the SD card.")
                 : tr("The configuration could not be put back on the SD card. It is kept "
                      "in %1.")
                       .arg(QDir::toNativeSeparators(kept)));
    }

    // 5.
    busy = false;
    emit threadFinished(Finished);
}

QString FileFormatThread::keepSavedConfig(const QString& saved) {
    // The data folder's CONFIG is emptied by the next format and removed at exit; a copy the
    // card does not hold moves out of their way.
    const QString kept = AppGlobals::dataFolder + "/CONFIG-" +
                         QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss");
    if (QDir(saved).exists() && QDir().rename(saved, kept)) {
        m_keptFolder = kept;
        logError("[Format] configuration kept in %s", kept.toLocal8Bit().constData());
        return kept;
    }
    logError("[Format] the saved configuration stays in %s", saved.toLocal8Bit().constData());
    return QString();
}

bool FileFormatThread::runTools(const std::vector<platform::ExternalCommand>& commands,
                                QString* output) {
    for (const platform::ExternalCommand& command : commands) {
        QStringList arguments;
        for (const std::string& argument : command.arguments)
            arguments << fromLocal(argument);
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(fromLocal(command.program), arguments);
        const bool finished = tool.waitForStarted() && tool.waitForFinished(kToolLimitMs);
        *output = QString::fromLocal8Bit(tool.readAll()).trimmed();
        logInfo("[Format] %s %s: %s", command.program.c_str(),
                arguments.join(' ').toLocal8Bit().constData(), output->toLocal8Bit().constData());
        if (!finished || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0) {
            if (output->isEmpty())
                *output = tool.errorString();
            return false;
        }
    }
    return true;
}

void FileFormatThread::followRemount(const QString& device) {
    if (device.isEmpty())
        return;
    for (const CardDrives::Drive& drive : CardDrives::list()) {
        if (drive.device == device && drive.root != m_root) {
            logInfo("[Format] the card is mounted again at %s",
                    drive.root.toLocal8Bit().constData());
            m_root = drive.root;
            ConfigAccess::cardRoot = drive.root;
            CardDrives::setValidatedRoot(drive.root);
        }
    }
}

FileFormatThread::Outcome FileFormatThread::formatCard(const QString& label, QString* detail) {
    if (!CardDrives::isSafeCardRoot(m_root)) {
        *detail = tr("The SD card is not the one that was opened, or it is no longer mounted. "
                     "Nothing on it was changed.");
        return NotStarted;
    }
    const platform::CardFormatPlan plan =
        platform::planCardFormat(m_root.toLocal8Bit().toStdString(), CardDrives::tables);
    const QString device = fromLocal(plan.device);
    if (plan.problem == platform::CardFormatPlan::NotMounted) {
        *detail = tr("The SD card is no longer mounted. Nothing on it was changed.");
        return NotStarted;
    }
    if (plan.problem == platform::CardFormatPlan::NoPermission) {
        *detail = tr("You have no permission to format %1. Nothing on the SD card was changed.")
                      .arg(device);
        return NotStarted;
    }
    QString output;
    if (!runTools(plan.before, &output)) {
        *detail =
            tr("The SD card could not be unmounted (%1). Nothing on it was changed.").arg(output);
        return NotStarted;
    }

    const QString formatter =
        fromLocal(platform::formatterPath(AppGlobals::programFolder.toLocal8Bit().toStdString()));
    const QStringList arguments = formatterArguments(label, fromLocal(plan.target));
    auto process = std::make_unique<QProcess>();
    m_process = process.get();
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &FileFormatThread::finishmkdos);
    logInfo("[Format] %s %s", formatter.toLocal8Bit().constData(),
            arguments.join(' ').toLocal8Bit().constData());
    m_process->start(formatter, arguments);
    Outcome outcome = Failed;
    if (!m_process->waitForStarted()) {
        // Nothing was written to the card: it only has to come back.
        logError("[Format] %s could not be started", formatter.toLocal8Bit().constData());
        *detail = tr("The formatter %1 could not be started. Nothing on the SD card was changed.")
                      .arg(QDir::toNativeSeparators(formatter));
        outcome = NotStarted;
    } else {
        platform::raiseToHighPriority(m_process->processId());
        m_process->waitForFinished(-1);
        m_process->waitForFinished(1000);
        logInfo("[Format] %s", m_process->readAll().trimmed().constData());
        if (m_process->exitStatus() != QProcess::NormalExit || m_process->exitCode() != 0) {
            logError("[Format] mkdosfs process failed with exit code : %d", m_process->exitCode());
            *detail = tr("The formatter failed with exit code %1.").arg(m_process->exitCode());
        } else {
            logInfo("mkdosfs process finished successfully!");
            logInfo("SD card formatted successfully!!!!!");
            m_process->kill();
            outcome = Formatted;
        }
    }
    m_process = nullptr;
    process.reset();

    if (!runTools(plan.after, &output))
        logError("[Format] the card was not mounted again: %s", output.toLocal8Bit().constData());
    followRemount(device);
    return outcome;
}
