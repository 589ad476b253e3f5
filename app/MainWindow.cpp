#include "MainWindow.h"

#include "AgreementView.h"
#include "AppGlobals.h"
#include "StatusLog.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

#include <cstdlib>

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
    logInfo("[MainWindow]: Enter MainWindow class.");
    hide();

    AppGlobals::volume = AppGlobals::settings->value("volume", AppGlobals::volume).toInt();
    AppGlobals::mute = AppGlobals::settings->value("mute", AppGlobals::mute).toBool();
    AppGlobals::snapshotPath = AppGlobals::settings->value("snapshotPath").toString();
    AppGlobals::videoPath = AppGlobals::settings->value("videoPath").toString();

    checkAgreement();
    if (!m_agreementAccepted) {
        logInfo("User disagree to use privacy information for program");
        AppGlobals::settings->sync();
        std::exit(0);
    }

    logInfo("Start to set UI");
    setAcceptDrops(true);
    setupUi();

    resize(kInitialWidth, kInitialHeight);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect screenRect = screen->geometry();
        move(screenRect.x() + (screenRect.width() - kInitialWidth) / 2,
             screenRect.y() + (screenRect.height() - kInitialHeight) / 2);
    }
    onUpdateMonitorSize(true);
    logDebug("create mainWindow success");
}

MainWindow::~MainWindow() {
    logInfo("[MainWindow]: Close Application.");
    if (m_saveSettings)
        saveSettings();
    logInfo("[MainWindow]: Delete Thumbs...");
    removeDataFolderLeftovers();
    logInfo("Destruct complete!");

    delete m_centralWidget;
    m_centralWidget = nullptr;

    logInfo("[MainWindow]: Delete log File...");
    const QString log = AppGlobals::statusLogPath();
    if (QFile::exists(log) && !QFile::remove(log))
        logError("[MainWindow]: Can not delete log File.");
}

bool MainWindow::acceptAgreementValue(const QString& value) {
    static const QStringList accepted = {"0", "1", "3", "5", "7"};
    if (!accepted.contains(value))
        return false;
    const int bits = value.toInt();
    AppGlobals::updateChecksAllowed = (bits & 2) != 0;
    AppGlobals::autoCrashReports = (bits & 4) != 0;
    return true;
}

void MainWindow::checkAgreement() {
    const QString agreement = AppGlobals::settings->value("agreement").toString();
    if (agreement.isEmpty()) {
        auto* dialog = new AgreementView(this);
        connect(dialog, &QDialog::finished, this, &MainWindow::onAgreeDlgFinished);
        dialog->exec();
        delete dialog;
        return;
    }
    m_agreementAccepted = acceptAgreementValue(agreement);
}

void MainWindow::onAgreeDlgFinished(int result) {
    logDebug("MainWindow::onAgreeDlgFinished");
    m_agreementAccepted = result == 1;
}

void MainWindow::onSetNotSaveSetting() {
    logDebug("MainWindow::onSetNotSaveSetting");
    m_saveSettings = false;
}

void MainWindow::setupUi() {
    UiDescription ui;
    ui.open(QStringLiteral("MainWindow"));
    m_centralWidget = new QWidget(this);
    const UiItem central = ui.item("centralWidget");
    UiApplier::apply(m_centralWidget, "CentralWidget", central,
                     UiApplier::panelStyleSheet(central, ui.imageFolder()));
    setCentralWidget(m_centralWidget);
    QMetaObject::connectSlotsByName(this);
}

void MainWindow::onUpdateMonitorSize(bool) {
    logDebug("MainWindow::onUpdateMonitorSize");
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        m_screenSize = screen->size();
        m_availableGeometry = screen->availableGeometry();
    }
}

void MainWindow::saveSettings() {
    QSettings& settings = *AppGlobals::settings;
    const QRect frame = geometry();
    settings.setValue("width", width());
    settings.setValue("height", height());
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

void MainWindow::removeDataFolderLeftovers() {
    for (const char* folder : {"/Thumbs", "/snapshot", "/CONFIG"}) {
        QDir dir(AppGlobals::dataFolder + QLatin1String(folder));
        if (dir.exists())
            dir.removeRecursively();
    }
}
