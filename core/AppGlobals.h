#pragma once

#include <QString>

class QSettings;
class QTranslator;

// Values shared by the whole process. They are set during start-up, before any worker
// thread exists, and read everywhere afterwards.
class AppGlobals {
public:
    static constexpr const char* kProgramVersion = "1.0.6";
    static constexpr const char* kStatusLogName = "/playerStatus.txt";

    static QSettings* settings;
    static QString programFolder;
    static QString resourcesFolder;
    static QString dataFolder;
    static int logLevel;
    static int languageIndex;
    static QString installId;
    static QString version;
    static QTranslator* translator;

    // From the stored privacy agreement.
    static bool updateChecksAllowed;
    static bool autoCrashReports;

    // The stored form of the privacy choices: 1, plus 2 for update checks, plus 4 for crash
    // reports.
    static QString agreementValue(bool updateChecks, bool crashReports);
    // Stores the choices as the "agreement" setting and takes them for this run.
    static void storeAgreement(bool updateChecks, bool crashReports);

    // Kept in the settings store and saved at exit.
    static int volume;
    static bool mute;
    static QString snapshotPath;
    static QString videoPath;
    // Where snapshots and video go while no folder was chosen.
    static QString defaultSnapshotFolder();
    static QString defaultVideoFolder();
    // Speeds in the report: 2 miles per hour, anything else kilometres per hour.
    static int speedUnit;
    // Drives: the longest gap between recordings of one drive (s), and the incident
    // thresholds in percent of the published ones (80 more sensitive, 125 more relaxed).
    static int driveGapSeconds;
    static int incidentScalePercent;

    static QString statusLogPath();

    // The translation file for a language index (0 English, 1 Korean, 2 Hebrew), or an
    // empty text for any other index.
    static QString translationFile(int languageIndex);

    // Replaces the installed translation with the one for languageIndex. Any other index
    // leaves the translator empty, so the source texts show.
    static void installTranslation(int languageIndex);
};
