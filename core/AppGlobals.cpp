#include "AppGlobals.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTranslator>

QSettings* AppGlobals::settings = nullptr;
QString AppGlobals::programFolder;
QString AppGlobals::resourcesFolder;
QString AppGlobals::dataFolder;
int AppGlobals::logLevel = 5;
int AppGlobals::languageIndex = 0;
QString AppGlobals::installId;
QString AppGlobals::version;
QTranslator* AppGlobals::translator = nullptr;
bool AppGlobals::updateChecksAllowed = false;
bool AppGlobals::autoCrashReports = false;
int AppGlobals::volume = 100;
bool AppGlobals::mute = false;
QString AppGlobals::snapshotPath;
QString AppGlobals::videoPath;
int AppGlobals::speedUnit = 1;
int AppGlobals::driveGapSeconds = 10;
int AppGlobals::incidentScalePercent = 100;

QString AppGlobals::agreementValue(bool updateChecks, bool crashReports) {
    return QString::number(1 | (updateChecks ? 2 : 0) | (crashReports ? 4 : 0));
}

void AppGlobals::storeAgreement(bool updateChecks, bool crashReports) {
    settings->setValue("agreement", agreementValue(updateChecks, crashReports));
    settings->sync();
    updateChecksAllowed = updateChecks;
    autoCrashReports = crashReports;
}

QString AppGlobals::defaultSnapshotFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + "/ZENTA";
}

QString AppGlobals::defaultVideoFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::MoviesLocation) + "/ZENTA";
}

QString AppGlobals::statusLogPath() {
    return dataFolder + QLatin1String(kStatusLogName);
}

QString AppGlobals::translationFile(int index) {
    static const char* const files[] = {"/translation/trans_en.qm", "/translation/trans_ko.qm",
                                        "/translation/trans_he.qm"};
    if (index < 0 || index > 2)
        return QString();
    return resourcesFolder + QLatin1String(files[index]);
}

void AppGlobals::installTranslation(int index) {
    if (translator == nullptr)
        translator = new QTranslator;
    QCoreApplication::removeTranslator(translator);
    // load() drops the previous translation first, so an unknown index or a missing file
    // leaves the translator empty and the source texts show.
    translator->load(translationFile(index));
    QCoreApplication::installTranslator(translator);
}
