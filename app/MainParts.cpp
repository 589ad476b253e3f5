#include "MainParts.h"

#include "CardSession.h"
#include "ChartView.h"
#include "DriveListView.h"
#include "DrivePlayback.h"
#include "ExportSession.h"
#include "IncidentListView.h"
#include "LeftSideView.h"
#include "MapView.h"
#include "PlayControlView.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "RightSideView.h"
#include "SubPlayerWindow.h"
#include "SubSceneBackWidget.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavShortcutTable.h"
#include "TavTypeButton.h"
#include "TavTypeList.h"
#include "TavWidget.h"
#include "TopBar.h"
#include "WaitPlayLogo.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>
#include <iterator>

bool MainParts::enabled(const char* entry) const {
    return central != nullptr && central->isEnabledChild(QLatin1String(entry));
}

void MainParts::build(QMainWindow* window) {
    central = new TavWidget("MainWindow", window);
    central->addChild(central, "centralWidget", TavWidget::Style::Panel);
    central->setObjectName("CentralWidget");
    window->setCentralWidget(central);

    leftSide = new LeftSideView(central);
    central->addChild(leftSide, "leftSideView", TavWidget::Style::None);
    rightSide = new RightSideView(central);
    central->addChild(rightSide, "rightSideView", TavWidget::Style::None);
    topBar = new TopBar(central);
    central->addChild(topBar, "Topbar", TavWidget::Style::None);
    topBar->setObjectName("topBar");
    shortcuts = new TavShortcutTable(central);
    central->addChild(shortcuts, "shortcutTable", TavWidget::Style::None);

    fileListButton = new QPushButton(central);
    central->addChild(fileListButton, "bFilelist", TavWidget::Style::Button);
    fileListButton->setCheckable(true);
    fileListButton->setFocusPolicy(Qt::NoFocus);
    drivesButton = new QPushButton(central);
    central->addChild(drivesButton, "bDrives", TavWidget::Style::Button);
    drivesButton->setCheckable(true);
    drivesButton->setFocusPolicy(Qt::NoFocus);
    mapButton = new QPushButton(central);
    central->addChild(mapButton, "bMap", TavWidget::Style::Button);
    mapButton->setCheckable(true);
    mapButton->setFocusPolicy(Qt::NoFocus);

    fileList = new TavFileListItem(central);
    central->addChild(fileList, "fileList", TavWidget::Style::None);
    driveList = new DriveListView(central);
    central->addChild(driveList, "driveList", TavWidget::Style::None);
    driveList->setObjectName("driveList");
    driveList->hide();
    fileCombo = new TavFileComboBox(central);
    central->addChild(fileCombo, "cbfileState", TavWidget::Style::None);
    typeList = new TavTypeList(central);
    central->addChild(typeList, "lFileType", TavWidget::Style::None);
    typeList->hide(); // a pop-up: shown from the combo
    // One click filters the list by one type, or shows every type again.
    const struct {
        const char* entry;
        int fileType;
    } types[] = {{"bAllType", 15}, {"bInfinity", 1}, {"bParking", 4}, {"bEvent", 2}};
    for (int i = 0; i < 4; ++i) {
        typeButtons[i] = new TavTypeButton(central, types[i].fileType);
        typeButtons[i]->setFocusPolicy(Qt::NoFocus);
        central->addChild(typeButtons[i], types[i].entry, TavWidget::Style::Button);
    }
    map = new MapView(central);
    central->addChild(map, "MapView", TavWidget::Style::None);

    stack = new QStackedWidget(central);
    central->addChild(stack, "StackedWidget", TavWidget::Style::None);
    logo = new WaitPlayLogo(stack);
    stack->addWidget(logo);
    logo->setObjectName("WaitPlayLogo");
    playScreen = new PlayScreenWindow(stack);
    stack->addWidget(playScreen);
    playScreen->setObjectName("PlayScreenView");
    stack->setCurrentWidget(logo);

    // The rear scenes float over the main scene on their own backing.
    subBack = new SubSceneBackWidget(central);
    if (central->addChild(subBack, "subSceneBackWidget", TavWidget::Style::None))
        subBack->setHomePosition(subBack->pos());
    const char* const subEntries[] = {"subPlayer1", "subPlayer2"};
    for (int i = 0; i < 2; ++i) {
        subPlayers[i] = new SubPlayerWindow(i + 1, subBack);
        subBack->addChild(subPlayers[i], subEntries[i], TavWidget::Style::None);
        subPlayers[i]->setObjectName(QString("subPlayerWindow%1").arg(i + 1));
    }
    subBack->hide();

    control = new PlayControlView(central);
    central->addChild(control, "ControlView", TavWidget::Style::None);
    control->setObjectName("ControlView");
    // The chart fills the panel's place for it, the drive's incidents beside it.
    chart = new ChartView(control->chartArea());
    incidents = new IncidentListView(control->chartArea());
    incidents->setFixedWidth(260);
    auto* chartLayout = new QHBoxLayout(control->chartArea());
    chartLayout->setContentsMargins(0, 0, 0, 0);
    chartLayout->setSpacing(4);
    chartLayout->addWidget(chart, 1);
    chartLayout->addWidget(incidents);

    player = new PlayerInterface(window);
    player->setMainScreen(playScreen->scene());
    player->setSub1Screen(subPlayers[0]->scene());
    player->setSub2Screen(subPlayers[1]->scene());
    drives = new DrivePlayback(window);
    card = new CardSession(window);
    exporter =
        new ExportSession(window, player, enabled("MapView") && enabled("bMap") ? map : nullptr);

    central->retranslate();
}

void MainParts::showScenes(bool logo, int channels) {
    stack->setCurrentWidget(logo ? static_cast<QWidget*>(this->logo) : playScreen);
    if (!logo) {
        for (SubPlayerWindow* sub : subPlayers) {
            const char* entry = sub->slot() == 1 ? "subPlayer1" : "subPlayer2";
            sub->setVisible(channels > sub->slot() && subBack->isEnabledChild(entry));
        }
    }
    subBack->setVisible(!logo && channels > 1 && enabled("subSceneBackWidget"));
    if (subBack->isVisible())
        subBack->raise();
}

bool MainParts::swapIntoMain(int id) {
    SubPlayerWindow* const* found =
        std::find_if(std::begin(subPlayers), std::end(subPlayers),
                     [id](const SubPlayerWindow* sub) { return sub->id() == id; });
    if (found == std::end(subPlayers))
        return false;
    SubPlayerWindow* sub = *found;
    const int mainId = playScreen->id();
    const int subId = sub->id();
    QWidget* mainScene = playScreen->swapScene(sub->scene(), subId);
    sub->swapScene(mainScene, mainId);
    control->setFlipChannel(subId);
    return true;
}

void MainParts::showSidePanel(SidePanel panel) {
    fileListButton->setChecked(panel == ListPanel);
    drivesButton->setChecked(panel == DrivesPanel);
    mapButton->setChecked(panel == MapPanel);
    if (enabled("fileList"))
        fileList->setVisible(panel == ListPanel);
    if (enabled("driveList"))
        driveList->setVisible(panel == DrivesPanel);
    // The type filter applies to the recordings and the drives alike.
    if (enabled("cbfileState"))
        fileCombo->setVisible(panel != MapPanel);
    QWidget* shown = panel == MapPanel      ? static_cast<QWidget*>(map)
                     : panel == DrivesPanel ? static_cast<QWidget*>(driveList)
                                            : static_cast<QWidget*>(fileList);
    shown->raise();
    if (panel != MapPanel)
        map->lower();
}
