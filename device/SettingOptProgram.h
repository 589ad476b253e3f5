#pragma once

#include "SettingOptPage.h"

#include <QVector>

class SettingOpt;
class SettingOptAction;

// The settings dialog's page of the program's own settings: the interface language, the
// unit of speeds, the folders snapshots and video are saved to, whether the program keeps
// its window, sound and folders when it closes, how drives are made and how sensitive the
// incident search is, and the program reset. Each change takes
// effect at once.
class SettingOptProgram : public SettingOptPage {
    Q_OBJECT
public:
    // Settings of this page that the main window does not save at its end.
    static constexpr const char* kSpeedUnitKey = "speedUnit";
    static constexpr const char* kKeepSettingsKey = "keepSettings";
    static constexpr const char* kDriveGapKey = "driveGapSeconds";
    static constexpr const char* kIncidentScaleKey = "incidentScale";

    explicit SettingOptProgram(QWidget* parent = nullptr);

    // Whether the program saves its settings when it closes ("keepSettings", true when
    // absent).
    static bool keepsSettings();

    SettingOpt* option(const QString& name) const;
    SettingOptAction* snapshotRow() const { return m_snapshot; }
    SettingOptAction* videoRow() const { return m_video; }
    SettingOptAction* resetRow() const { return m_reset; }

    void retranslate() override;

signals:
    // The language was switched; the views show their texts anew.
    void onSendChangeLanguage();
    // The speed unit was switched (1 km/h, 2 miles per hour).
    void onSendSpeedUnit(int unit);
    // The drive gap or the incident thresholds changed (AppGlobals holds them).
    void onSendDriveRules();
    // The user asks for the program reset (the dialog asks and does it).
    void onSendProgramReset();

private slots:
    void onOptionChanged(const QString& name, int value);

private:
    void chooseFolder(bool video);
    void showFolders();

    QVector<SettingOpt*> m_options;
    SettingOptAction* m_snapshot;
    SettingOptAction* m_video;
    SettingOptAction* m_reset;
};
