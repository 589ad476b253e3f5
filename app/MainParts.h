#pragma once

class CardSession;
class ChartView;
class IncidentListView;
class DrivePlayback;
class DriveListView;
class ExportSession;
class LeftSideView;
class MapView;
class PlayControlView;
class PlayScreenWindow;
class PlayerInterface;
class QMainWindow;
class QPushButton;
class QStackedWidget;
class RightSideView;
class SubPlayerWindow;
class SubSceneBackWidget;
class TavFileComboBox;
class TavFileListItem;
class TavShortcutTable;
class TavTypeButton;
class TavTypeList;
class TavWidget;
class TopBar;
class WaitPlayLogo;

// The main window's children, built from the "MainWindow" description, and the sessions
// that act for it. The window and the view wiring both reach the views through here.
struct MainParts {
    TavWidget* central = nullptr;
    TopBar* topBar = nullptr;
    LeftSideView* leftSide = nullptr;
    RightSideView* rightSide = nullptr;
    TavShortcutTable* shortcuts = nullptr;
    QStackedWidget* stack = nullptr;
    WaitPlayLogo* logo = nullptr;
    QPushButton* fileListButton = nullptr;
    QPushButton* mapButton = nullptr;
    QPushButton* drivesButton = nullptr;
    MapView* map = nullptr;
    ChartView* chart = nullptr;
    IncidentListView* incidents = nullptr;
    TavFileListItem* fileList = nullptr;
    DriveListView* driveList = nullptr;
    TavFileComboBox* fileCombo = nullptr;
    TavTypeList* typeList = nullptr;
    PlayScreenWindow* playScreen = nullptr;
    SubSceneBackWidget* subBack = nullptr;
    SubPlayerWindow* subPlayers[2] = {nullptr, nullptr};
    PlayControlView* control = nullptr;
    // "bAllType", "bInfinity", "bParking", "bEvent".
    TavTypeButton* typeButtons[4] = {nullptr, nullptr, nullptr, nullptr};
    PlayerInterface* player = nullptr;
    DrivePlayback* drives = nullptr;
    CardSession* card = nullptr;
    ExportSession* exporter = nullptr;

    enum SidePanel { ListPanel, DrivesPanel, MapPanel };
    // The side panel shows the recordings list, the drives or the map; its tab is checked.
    void showSidePanel(SidePanel panel);
    // Builds every child into window, the scenes handed to the coordinator.
    void build(QMainWindow* window);
    // The waiting logo, or the main scene with the rear scenes the recording's channels use.
    void showScenes(bool logo, int channels);
    // Shows camera id (now in a rear scene) in the main scene and the main scene's camera in
    // that rear scene; false when no rear scene shows id.
    bool swapIntoMain(int id);
    // Whether the description builds and enables entry: a row of the wiring is made only when
    // both of its ends are.
    bool enabled(const char* entry) const;
};
