#include "SettingOptProgram.h"

#include "AppGlobals.h"
#include "SettingOpt.h"
#include "SettingOptAction.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "UiDescription.h"

#include <QDir>
#include <QSettings>

namespace {

const char* const kLanguage = QT_TRANSLATE_NOOP("SettingOpt", "Language");
const char* const kSpeedUnit = QT_TRANSLATE_NOOP("SettingOpt", "Speed Unit");
const char* const kKeep = QT_TRANSLATE_NOOP("SettingOpt", "Keep Settings");
const char* const kDriveGap = QT_TRANSLATE_NOOP("SettingOpt", "Drive Gap");
const char* const kIncidents = QT_TRANSLATE_NOOP("SettingOpt", "Incident Thresholds");

} // namespace

SettingOptProgram::SettingOptProgram(QWidget* parent)
    : SettingOptPage("page_Program Setting", "programTitle", parent) {
    // Each language under its own name, whatever the interface shows now.
    const SettingRecord records[] = {
        record(kLanguage, SettingOpt::ComboKind,
               {{QStringLiteral("English"), 0},
                {QStringLiteral("\uD55C\uAD6D\uC5B4"), 1},
                {QStringLiteral("\u05E2\u05D1\u05E8\u05D9\u05EA"), 2}}),
        record(kSpeedUnit, SettingOpt::ChoiceKind,
               {{QStringLiteral("Km/h"), 1}, {QStringLiteral("Mi/h"), 2}}),
        record(kKeep, SettingOpt::ToggleKind, {},
               QT_TRANSLATE_NOOP("SettingOpt", "Save the window, language, sound and folders "
                                               "when the program closes.")),
        record(kDriveGap, SettingOpt::ComboKind,
               {{QStringLiteral("5 s"), 5},
                {QStringLiteral("10 s"), 10},
                {QStringLiteral("30 s"), 30},
                {QStringLiteral("1 min"), 60},
                {QStringLiteral("5 min"), 300}},
               QT_TRANSLATE_NOOP("SettingOpt", "Recordings closer than this make one drive.")),
        record(kIncidents, SettingOpt::ComboKind,
               {{QStringLiteral("80 %"), 80},
                {QStringLiteral("100 %"), 100},
                {QStringLiteral("125 %"), 125}},
               QT_TRANSLATE_NOOP("SettingOpt", "Of the published thresholds: lower finds more "
                                               "incidents, higher fewer.")),
    };
    for (const SettingRecord& made : records) {
        auto* option = new SettingOpt(made, look(), this);
        m_options.append(option);
        connect(option, &SettingOpt::onSendValueChanged, this, &SettingOptProgram::onOptionChanged);
    }
    m_options[0]->setValue(AppGlobals::languageIndex);
    m_options[1]->setValue(AppGlobals::speedUnit == 2 ? 2 : 1);
    m_options[2]->setValue(keepsSettings() ? 1 : 0);
    m_options[3]->setValue(AppGlobals::driveGapSeconds);
    m_options[4]->setValue(AppGlobals::incidentScalePercent);

    m_snapshot =
        new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Snapshot Folder"),
                             QT_TRANSLATE_NOOP("SettingOpt", "Change"), look(), "optAction", this);
    m_video =
        new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Video Folder"),
                             QT_TRANSLATE_NOOP("SettingOpt", "Change"), look(), "optAction", this);
    connect(m_snapshot, &SettingOptAction::clicked, this, [this] { chooseFolder(false); });
    connect(m_video, &SettingOptAction::clicked, this, [this] { chooseFolder(true); });
    m_reset = new SettingOptAction(QT_TRANSLATE_NOOP("SettingOpt", "Program Reset"),
                                   QT_TRANSLATE_NOOP("SettingOpt", "Program Reset"), look(),
                                   "bProgramReset", this);
    connect(m_reset, &SettingOptAction::clicked, this, &SettingOptProgram::onSendProgramReset);

    addRows({m_options[0], m_options[1], m_snapshot, m_video, m_options[3], m_options[4],
             m_options[2], m_reset});
    retranslate();
}

bool SettingOptProgram::keepsSettings() {
    return AppGlobals::settings->value(kKeepSettingsKey, true).toBool();
}

SettingOpt* SettingOptProgram::option(const QString& name) const {
    for (SettingOpt* option : m_options) {
        if (option->record().name == name)
            return option;
    }
    return nullptr;
}

void SettingOptProgram::retranslate() {
    SettingOptPage::retranslate();
    for (SettingOpt* option : qAsConst(m_options))
        option->retranslate();
    for (SettingOptAction* row : {m_snapshot, m_video, m_reset})
        row->retranslate();
    m_reset->setHint(look().translatedText("programNote"));
    showFolders();
}

void SettingOptProgram::showFolders() {
    const auto shown = [](const QString& path, const QString& fallback) {
        return QDir::toNativeSeparators(path.isEmpty() ? fallback : path);
    };
    m_snapshot->setHint(shown(AppGlobals::snapshotPath, AppGlobals::defaultSnapshotFolder()));
    m_video->setHint(shown(AppGlobals::videoPath, AppGlobals::defaultVideoFolder()));
}

void SettingOptProgram::chooseFolder(bool video) {
    logDebug("SettingOptProgram::chooseFolder");
    const QString current = video ? AppGlobals::videoPath : AppGlobals::snapshotPath;
    const QString folder =
        TavPrompt::openFolder(this, tr("Choose a folder"),
                              current.isEmpty() ? (video ? AppGlobals::defaultVideoFolder()
                                                         : AppGlobals::defaultSnapshotFolder())
                                                : current);
    if (folder.isEmpty())
        return;
    (video ? AppGlobals::videoPath : AppGlobals::snapshotPath) = QDir::fromNativeSeparators(folder);
    showFolders();
}

void SettingOptProgram::onOptionChanged(const QString& name, int value) {
    logDebug("SettingOptProgram::onOptionChanged");
    QSettings& settings = *AppGlobals::settings;
    if (name == QLatin1String(kLanguage)) {
        AppGlobals::languageIndex = value;
        AppGlobals::installTranslation(value);
        emit onSendChangeLanguage();
    } else if (name == QLatin1String(kSpeedUnit)) {
        AppGlobals::speedUnit = value;
        settings.setValue(kSpeedUnitKey, value);
        emit onSendSpeedUnit(value);
    } else if (name == QLatin1String(kKeep)) {
        settings.setValue(kKeepSettingsKey, value != 0);
    } else if (name == QLatin1String(kDriveGap)) {
        AppGlobals::driveGapSeconds = value;
        settings.setValue(kDriveGapKey, value);
        emit onSendDriveRules();
    } else if (name == QLatin1String(kIncidents)) {
        AppGlobals::incidentScalePercent = value;
        settings.setValue(kIncidentScaleKey, value);
        emit onSendDriveRules();
    }
    settings.sync();
}
