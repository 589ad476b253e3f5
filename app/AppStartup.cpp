#include "AppStartup.h"

#include "AgreementView.h"
#include "AppGlobals.h"
#include "MainWindow.h"
#include "ProcessPriority.h"
#include "ServiceSession.h"
#include "StatusLog.h"
#include "TerminationSignal.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QRect>
#include <QScreen>
#include <QSettings>
#include <QSocketNotifier>
#include <QSplashScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>

bool AppStartup::acceptAgreementValue(const QString& value) {
    static const QStringList accepted = {"0", "1", "3", "5", "7"};
    if (!accepted.contains(value))
        return false;
    const int bits = value.toInt();
    AppGlobals::updateChecksAllowed = (bits & 2) != 0;
    AppGlobals::autoCrashReports = (bits & 4) != 0;
    return true;
}

bool AppStartup::agreementAccepted(const std::function<void(int)>& finished) {
    const QString agreement = AppGlobals::settings->value("agreement").toString();
    if (!agreement.isEmpty())
        return acceptAgreementValue(agreement);
    // Asked without a parent: a dialog with the main window as its parent makes the window's
    // native handle before any child exists. The scenes' native windows made later would then
    // be stacked by the order of their making rather than the widgets' order, and the
    // right-hand panel ended up above the main scene, which stayed black on the first start.
    AgreementView dialog(nullptr);
    QObject::connect(&dialog, &QDialog::finished, finished);
    return dialog.exec() == 1;
}

namespace {

// Set once the session asked the program to terminate.
bool g_terminationRequested = false;

// Ends the event loop when the session asks the program to terminate, so that the normal
// shutdown (settings saved, log removed) runs. A request that arrives while the window is
// still being shown (before the main event loop runs, when quit() would be lost) is kept
// and honoured when the loop would start.
void quitOnTerminationRequest() {
    const int fd = platform::terminationRequestDescriptor();
    if (fd < 0)
        return;
    auto* notifier = new QSocketNotifier(fd, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] {
        platform::clearTerminationRequests();
        logInfo("[Main]: Termination requested.");
        g_terminationRequested = true;
        QCoreApplication::quit();
    });
}

void writeLogHeader() {
    const char* const rule = "--------------------------------------------------";
    logLine("%s", rule);
    logLine(" This is log file to record Player status.");
    logLine(" This file should not collect user's information.");
    logLine("%s", rule);
}

} // namespace

void AppStartup::initialiseFolders() {
    AppGlobals::programFolder = QCoreApplication::applicationDirPath();
    AppGlobals::dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(AppGlobals::dataFolder);
    AppGlobals::logLevel = 5;
    AppGlobals::resourcesFolder = AppGlobals::programFolder + "/Resources";
}

void AppStartup::readStoredValues() {
    QSettings& settings = *AppGlobals::settings;
    AppGlobals::languageIndex = settings.value("language", 0).toInt();
    AppGlobals::installId = settings.value("id").toString();
    AppGlobals::version = settings.value("version").toString();
    if (AppGlobals::version != QLatin1String(AppGlobals::kProgramVersion)) {
        AppGlobals::version = QLatin1String(AppGlobals::kProgramVersion);
        settings.setValue("version", AppGlobals::version);
        settings.sync();
    }
}

void AppStartup::readPlayerValues() {
    const QSettings& settings = *AppGlobals::settings;
    AppGlobals::volume = settings.value("volume", AppGlobals::volume).toInt();
    AppGlobals::mute = settings.value("mute", AppGlobals::mute).toBool();
    AppGlobals::snapshotPath = settings.value("snapshotPath").toString();
    AppGlobals::videoPath = settings.value("videoPath").toString();
    AppGlobals::speedUnit = settings.value("speedUnit", AppGlobals::speedUnit).toInt();
    AppGlobals::driveGapSeconds =
        settings.value("driveGapSeconds", AppGlobals::driveGapSeconds).toInt();
    AppGlobals::incidentScalePercent =
        settings.value("incidentScale", AppGlobals::incidentScalePercent).toInt();
}

void AppStartup::saveValues(const QRect& frame) {
    QSettings& settings = *AppGlobals::settings;
    settings.setValue("width", frame.width());
    settings.setValue("height", frame.height());
    settings.setValue("geoX", frame.x());
    settings.setValue("geoY", frame.y());
    settings.setValue("language", AppGlobals::languageIndex);
    settings.setValue("volume", AppGlobals::volume);
    settings.setValue("mute", AppGlobals::mute);
    settings.setValue("snapshotPath", AppGlobals::snapshotPath);
    settings.setValue("videoPath", AppGlobals::videoPath);
    settings.setValue("version", AppGlobals::version);
    settings.sync();
}

void AppStartup::removeDataFolderLeftovers() {
    // The snapshot folder is spelled two ways by different views; on a case-sensitive file
    // system they are two folders.
    for (const char* folder : {"/Thumbs", "/snapshot", "/Snapshot", "/CONFIG"}) {
        QDir dir(AppGlobals::dataFolder + QLatin1String(folder));
        if (dir.exists())
            dir.removeRecursively();
    }
}

void AppStartup::removeStatusLog() {
    const QString log = AppGlobals::statusLogPath();
    if (QFile::exists(log) && !QFile::remove(log))
        logError("[MainWindow]: Can not delete log File.");
}

int AppStartup::run(int& argc, char** argv) {
    // The map's web view shares its OpenGL contexts with the rest of the window.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName("ZENTA DASHCAM");
    QCoreApplication::setOrganizationName("com.ZENTA_DASHCAM");
    QCoreApplication::setOrganizationDomain("com.ZENTA_DASHCAM");

    AppGlobals::settings = new QSettings("qorbu", "tavoric");
    initialiseFolders();

    writeLogHeader();
    logInfo("[Main]: Program is run.");
    logInfo("[Main]: Main Function start now.");
    logInfo("[Main]: QApplication start..");

    AppGlobals::translator = new QTranslator;
    readStoredValues();

    QScreen* screen = QGuiApplication::primaryScreen();
    const QRect screenRect = screen != nullptr ? screen->geometry() : QRect();
    logInfo("[Main]: Set Splash image...");
    auto* splash = new QSplashScreen(QPixmap(AppGlobals::resourcesFolder + "/image/splash.webp"));
    splash->move(screenRect.center() - splash->rect().center());
    splash->show();
    logLine("Complete! ");

    logInfo("[Main]: Set Translation file...");
    AppGlobals::installTranslation(AppGlobals::languageIndex);

    platform::raiseProcessPriority();
    quitOnTerminationRequest();

    logInfo("[Main]: MainWindow start now!");
    auto* window = new MainWindow;
    window->show();
    splash->finish(window);
    delete splash;
    window->service()->startVersionCheck();
    // Paths on the command line open as a drop would, once the window is up.
    const QStringList paths = QCoreApplication::arguments().mid(1);
    if (!paths.isEmpty())
        QTimer::singleShot(0, window, [window, paths] { window->openPaths(paths); });

    const int exitCode = g_terminationRequested ? 0 : QApplication::exec();
    delete window;
    return exitCode;
}
