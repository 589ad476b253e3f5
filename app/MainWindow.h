#pragma once

#include "MainParts.h"

#include <QMainWindow>
#include <QRect>
#include <QSize>

class Frameless;
class ServiceSession;

// The one top-level window. It checks the privacy agreement before anything is shown,
// builds its children from the "MainWindow" description, wires the views to each other,
// and at the end saves the settings and cleans the data folder. Views never call each
// other; the routes that end here are made in connectViews(), the others in ViewWiring.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    static constexpr int kInitialWidth = 1366;
    static constexpr int kInitialHeight = 768;

    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    PlayerInterface* player() const { return m_parts.player; }
    // The companion service: the version check after the window shows starts there.
    ServiceSession* service() const { return m_service; }

    // Files and folders given on the command line: listed as a drop would list them, and
    // the first recording plays.
    void openPaths(const QStringList& paths);

signals:
    void onSendAlwaysTopUiChange(int state);
    void onSendHideTypeList();
    void onSendStopItemThread();
    void onSendZoomReset();
    void onSendChangeLanguage();
    void onSendBlockEvent(bool block);
    void onSendMapShow(bool show);
    void onSendFileList(const QStringList& paths);
    // The type mask a type button chose, for the type filter.
    void onSendSelectType(int mask);
    // Requests to the panel and the coordinator: pause what plays, stop it.
    void onSendSetPause();
    void onSendStop(bool isClick);
    // Every view lets go of the recording and the list of its rows.
    void onSendClear();

public slots:
    void onAgreeDlgFinished(int result);
    void onSetNotSaveSetting();
    void onUpdateMonitorSize(bool update = true);
    void onShowMaximized();
    void onShowMinimized();
    void onRecvFullScreen();
    void onFixedTopScreen();
    void onShowLogo(bool show);
    void onBlockEvent(bool block);
    void onShowPlayWindow(int channels);
    void onBlockKeyboardEvent(bool block);
    // Shows camera id (shown in a rear scene) in the main scene, and the main scene's camera
    // in that rear scene.
    void onChangeSceneView(int id);
    // Every channel back in its own scene.
    void restoreScenes();
    void onShowFilelist();
    void onRaiseFilelist();
    // The side panel shows the recordings as drives.
    void onRaiseDrives();
    // The side panel shows the map in place of the file list.
    void onRaiseMap();
    void openLangaugeDlg();
    void openSDCardDlg();
    void openSettingDlg();
    void openAboutDlg();
    // The card at root went away or is being formatted: what plays from it stops, and the
    // list lets go of its recordings.
    void onCardContentsGone(const QString& root);
    // The recordings of the card opened in the card dialog.
    void onCardFiles(const QStringList& paths);
    void onFinishedDlg();
    void onChangeTextByLanguage();
    // A type button was clicked: 15 shows every type, a type bit (1, 2, 4) that type only.
    void onTypeFilter(int fileType);
    // A new recording's data is set: each camera back in its own scene, the zoom reset.
    void onRecvRefresh();
    // The type buttons follow the filter's mask, however it was chosen.
    void onShowTypeMask(int mask);
    // Saves the picture each camera shows now into the snapshot folder.
    void onGetImage();
    void openPrintDlg();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectViews();
    void connectTypeFilter();

    MainParts m_parts;
    ServiceSession* m_service = nullptr;

    bool m_agreementAccepted = false;
    bool m_saveSettings = true;
    bool m_blockEvent = false;
    bool m_blockKeyboard = false;
    int m_channels = 0;
    Frameless* m_frame = nullptr;
};
