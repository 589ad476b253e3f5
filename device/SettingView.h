#pragma once

#include "ConfigAccess.h"
#include "JsonToSetting.h"

#include <QDialog>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <functional>

class QLabel;
class QPushButton;
class QStackedWidget;
class SettingOpt;
class SettingOptCrashReport;
class SettingOptProgram;
class SettingOptUpdate;
class TavWidget;

// The modal settings dialog. Its "Device" pages show the opened card's camera settings, one
// page per setting tree, and write them back to the card; its "PCViewer" pages belong to the
// viewer itself. Three actions cannot be undone and are asked first: formatting the card,
// returning the camera to its factory settings, and returning the program to its first
// start.
class SettingView : public QDialog {
    Q_OBJECT
public:
    // The settings removed by a program reset, in order; "id" (the installation) stays.
    static const QStringList kProgramResetKeys;
    // Changing either from its factory value changes how the card's memory is laid out, so
    // returning it to the factory value takes a format.
    static constexpr const char* kBitrateSetting = "Video Bitrate";
    static constexpr const char* kAllocationSetting = "Memory Allocation";

    // One config.bin item as the dialog sees it; -1 in the first two means none.
    struct ShownItem {
        QString name;
        int initial = -1;
        int card = -1;
        int shown = -1;
    };

    explicit SettingView(QWidget* parent = nullptr);

    const QVector<QVector<ShownItem>>& items() const { return m_items; }
    // The row of a setting, or null.
    SettingOpt* option(const QString& name) const { return m_options.value(name); }
    // The page of a tree, or null when the camera has no such tree.
    QWidget* treePage(const QString& tree) const { return m_treePages.value(tree); }
    QLabel* stateLabel() const { return m_state; }
    SettingOptProgram* programPage() const { return m_program; }
    SettingOptUpdate* updatePage() const { return m_update; }
    SettingOptCrashReport* crashReportPage() const { return m_crashReport; }
    ConfigAccess& config() { return m_config; }

    // The card's own texts a "type 3" row names in its "link": "Identity", "Serial" (the
    // identity's last four characters, which the camera's Wi-Fi password is made of), "Model"
    // and "Version".
    static QString cardText(const QString& link);

    // Replaces the restart after a program reset; for tests.
    static std::function<void(const QString& program, const QStringList& arguments)> restartHook;

signals:
    void onSendNotSaveSetting();
    // A format is about to take the card's recordings, and has ended.
    void onSendFormatStarting();
    void onSendFormatFinished();
    // The program page switched the language.
    void onSendChangeLanguage();
    void onSendSpeedUnit(int unit);
    void onSendDriveRules();
    // The update page found a newer version.
    void onSendShowUpdate(const QString& version);

public slots:
    void onClickApply();
    void onClickOk();
    void onStateLabelChange();
    // After a write that held: the card's values are the shown ones.
    void onCardWritten();
    void onFileFormat();
    void onDeviceSetInit();
    void onSetProgramFormat();
    void onResetData();
    void onSetData();

private slots:
    void onOptionChanged(const QString& name, int value);
    void onFormatFinished();
    // Shows the dialog's texts in the language just chosen.
    void onChangeLanguage();

private:
    void buildFrame();
    QPushButton* addNavButton(const char* entry, QWidget* page);
    void loadCard();
    void readDescriptions();
    void buildTreePages();
    QWidget* makeTreePage(const SettingTree& tree);
    void buildViewerPages();
    QWidget* makeNotePage(const char* titleEntry, const char* noteEntry);
    void showValues();
    void updateChangeable();
    bool cardPresent();
    // Disables the dialog and lets it show so before a long card action.
    void prepareLongAction();
    void startFormat();
    int shownValue(const QString& name) const;
    int initialValue(const QString& name) const;

    TavWidget* m_form;
    QStackedWidget* m_pages = nullptr;
    QLabel* m_state = nullptr;
    QWidget* m_nav = nullptr;
    int m_navY = 0;
    ConfigAccess m_config;
    JsonToSetting m_settings;
    SettingTrees m_trees;
    QVector<QVector<ShownItem>> m_items;
    QHash<QString, SettingOpt*> m_options;
    QHash<QString, QWidget*> m_treePages;
    QHash<QLabel*, QString> m_treeTitles;
    SettingOptProgram* m_program = nullptr;
    SettingOptUpdate* m_update = nullptr;
    SettingOptCrashReport* m_crashReport = nullptr;
    bool m_formatPending = false;
    bool m_applying = false;
};
