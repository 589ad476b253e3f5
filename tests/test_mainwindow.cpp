// The main window as a user meets it: its panels, window-state buttons and keys, resizing by
// its borderless edges, and a language switch; views built from description files (what the
// reader makes of each key, what applying a record does to a widget); and the program's
// messages, questions and folder dialog: answers, and the program's dark look.
#include "AboutView.h"
#include "AppGlobals.h"
#include "CardSession.h"
#include "ChartView.h"
#include "DriveListView.h"
#include "DrivePlayback.h"
#include "ExportSession.h"
#include "Frameless.h"
#include "LanguageView.h"
#include "MainWindow.h"
#include "MapView.h"
#include "PlayControlView.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "SubPlayerWindow.h"
#include "SubSceneBackWidget.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavPrompt.h"
#include "TavShortcutTable.h"
#include "TavTypeButton.h"
#include "TavTypeList.h"
#include "TopBar.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>

#include "WebTestMain.h"

namespace {

// Runs check on the modal dialog once it is up; check ends the dialog. A check that fails
// half way leaves it open, so it is closed here then, and the test reports the failure.
void whenModal(const std::function<void(QWidget*)>& check) {
    QTimer::singleShot(0, [check] {
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        QWidget* dialog = QApplication::activeModalWidget();
        QTRY_VERIFY(dialog->isVisible());
        check(dialog);
        if (QApplication::activeModalWidget() == dialog)
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
    });
}

// The average brightness (0-255) of a widget as drawn.
int brightness(QWidget* widget) {
    const QImage image = widget->grab().toImage();
    long long sum = 0;
    int count = 0;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3) {
            sum += qGray(image.pixel(x, y));
            ++count;
        }
    }
    return count > 0 ? int(sum / count) : 255;
}

} // namespace

class TestMainWindow : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    MainWindow* m_window = nullptr;
    QWidget* m_parent = nullptr; // the file list: a parent with a style sheet of its own
    QString m_view;
    QString m_file;

    template <typename T> T* child(const char* name) const {
        T* found = m_window->findChild<T*>(QLatin1String(name));
        if (found == nullptr)
            qWarning("no child %s", name);
        return found;
    }

    void writeView(const QByteArray& json) {
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(json);
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.path();
        AppGlobals::programFolder = QCoreApplication::applicationDirPath();
        AppGlobals::resourcesFolder = AppGlobals::programFolder + "/Resources";
        AppGlobals::settings = new QSettings(m_dir.filePath("settings.ini"), QSettings::IniFormat);
        AppGlobals::settings->setValue("agreement", "3");
        AppGlobals::translator = new QTranslator;
        m_window = new MainWindow;
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        m_parent = child<QWidget>("fileList");
        QVERIFY(!m_parent->styleSheet().isEmpty() && !TavPrompt::styleSheet().isEmpty());
        // Test views live beside the real ones under a name no view uses.
        m_view = QStringLiteral("TestView%1").arg(QCoreApplication::applicationPid());
        m_file = UiDescription().jsonFolder() + m_view + ".json";
    }

    void cleanupTestCase() {
        QFile::remove(m_file);
        delete m_window;
        QVERIFY(!QFile::exists(AppGlobals::statusLogPath()));
    }

    void builtFromItsDescriptionAndFollowsAResize() {
        QCOMPARE(m_window->size(), QSize(1366, 768));
        QVERIFY(AppGlobals::updateChecksAllowed); // the stored agreement "3"
        QVERIFY(child<QWidget>("WaitPlayLogo")->isVisible());
        for (const char* name : {"bFolder", "bMemory", "bSetting", "bAbout"})
            QVERIFY2(child<QPushButton>(name)->isVisible(), name);
        // The top bar and close button follow, the list panel grows in height only.
        m_window->resize(1600, 900);
        QTRY_COMPARE(child<TopBar>("topBar")->width(), 1600);
        QCOMPARE(child<QPushButton>("bClose")->geometry().right(), 1599);
        QCOMPARE(child<QWidget>("leftSideView")->size(), QSize(310, 860));
        auto* chart = m_window->findChild<ChartView*>();
        QVERIFY(chart && chart->parentWidget()->objectName() == "chartView");
        QTRY_COMPARE(chart->width(), chart->parentWidget()->width());
        m_window->resize(1366, 768);
        QTRY_COMPARE(child<QPushButton>("bClose")->geometry().right(), 1365);
    }

    void aboutButtonOpensTheAboutView() {
        // No service runs here: the view says so.
        QString state;
        QTimer::singleShot(0, this, [&state] {
            auto* about = qobject_cast<AboutView*>(QApplication::activeModalWidget());
            if (about == nullptr)
                return;
            state = about->stateLabel()->text();
            about->reject();
        });
        QTest::mouseClick(child<QPushButton>("bAbout"), Qt::LeftButton);
        QCOMPARE(state, ServiceRequest::failureText(ServiceRequest::NotConnected));
    }

    void mapButtonTakesTheListsPlace() {
        auto* map = m_window->findChild<MapView*>();
        auto* list = child<QWidget>("fileList");
        QVERIFY(map && list && !map->isVisible() && list->isVisible());
        QTest::mouseClick(child<QPushButton>("bMap"), Qt::LeftButton);
        QVERIFY(map->isVisible() && !list->isVisible());
        QVERIFY(!child<QWidget>("cbfileState")->isVisible());
        QVERIFY(child<QPushButton>("bMap")->isChecked());
        QVERIFY(!child<QPushButton>("bFilelist")->isChecked());
        QTest::mouseClick(child<QPushButton>("bFilelist"), Qt::LeftButton);
        QVERIFY(!map->isVisible() && list->isVisible());
        QVERIFY(child<QWidget>("cbfileState")->isVisible());
    }

    void windowStateButtonsAndKeys() {
        QTest::mouseClick(child<QPushButton>("bMaximize"), Qt::LeftButton);
        QTRY_VERIFY(m_window->isMaximized());
        QVERIFY(child<QPushButton>("bMaximize")->isChecked());
        QTest::mouseClick(child<QPushButton>("bMaximize"), Qt::LeftButton);
        QTRY_VERIFY(!m_window->isMaximized());

        // Keys are the window's shortcuts: they need the window active.
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_window, Qt::Key_F11);
        QTRY_VERIFY(m_window->isFullScreen());
        QVERIFY(child<QPushButton>("bFullScreen")->isChecked());
        QTest::keyClick(m_window, Qt::Key_Escape);
        QTRY_VERIFY(!m_window->isFullScreen());
        QTRY_COMPARE(m_window->size(), QSize(1366, 768));

        QTest::mouseClick(child<QPushButton>("bAlwaysTop"), Qt::LeftButton);
        QVERIFY(m_window->windowFlags() & Qt::WindowStaysOnTopHint);
        QTest::mouseClick(child<QPushButton>("bAlwaysTop"), Qt::LeftButton);
        QVERIFY(!(m_window->windowFlags() & Qt::WindowStaysOnTopHint));

        // Input blocked while a recording opens: the keys wait.
        m_window->onBlockEvent(true);
        QTest::keyClick(m_window, Qt::Key_F11);
        QVERIFY(!m_window->isFullScreen());
        m_window->onBlockEvent(false);
    }

    // A borderless window is resized at its edges and moved from inside with the mouse.
    void borderlessWindowFollowsTheMouse() {
        QWidget window;
        window.setMinimumSize(300, 200);
        Frameless frameless(&window);
        window.setGeometry(100, 100, 400, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // Presses at a point of the window, drags by delta, releases.
        const auto drag = [&window](const QPoint& local, const QPoint& delta) {
            const QPoint global = window.geometry().topLeft() + local;
            for (const auto& [type, offset] : {std::pair{QEvent::MouseButtonPress, QPoint()},
                                               {QEvent::MouseMove, delta},
                                               {QEvent::MouseButtonRelease, delta}}) {
                QMouseEvent event(type, local + offset, global + offset, Qt::LeftButton,
                                  type == QEvent::MouseButtonRelease ? Qt::NoButton
                                                                     : Qt::LeftButton,
                                  Qt::NoModifier);
                QApplication::sendEvent(&window, &event);
            }
        };
        drag({398, 298}, {50, 30}); // the bottom-right corner outwards
        QCOMPARE(window.size(), QSize(450, 330));
        const QPoint topLeft = window.geometry().topLeft();
        // The left edge far to the right stops at the minimum width, the right edge fixed.
        const int right = window.geometry().right();
        drag({2, 150}, {400, 0});
        QCOMPARE(window.width(), 300);
        QCOMPARE(window.geometry().right(), right);
        // Eight pixels in from the edge is inside: a drag there moves the window.
        window.setGeometry(QRect(topLeft, QSize(450, 330)));
        drag({8, 150}, {-40, 25});
        QCOMPARE(window.geometry().topLeft(), topLeft + QPoint(-40, 25));
        QCOMPARE(window.size(), QSize(450, 330));
    }

    void languageDialog() {
        AppGlobals::languageIndex = 0;
        LanguageView dialog(m_window);
        auto* combo = dialog.findChild<QComboBox*>("comboLanguage");
        QVERIFY(combo);
        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->currentIndex(), 0);

        // The language already in use: nothing happens, the dialog stays.
        QSignalSpy changed(&dialog, &LanguageView::onSendChangeLanguage);
        dialog.show();
        QTest::mouseClick(dialog.findChild<QPushButton*>("bOk"), Qt::LeftButton);
        QCOMPARE(changed.count(), 0);
        QVERIFY(dialog.isVisible());

        // Korean: the dialog closes and the main window's views re-read their texts.
        connect(&dialog, &LanguageView::onSendChangeLanguage, m_window,
                &MainWindow::onSendChangeLanguage);
        combo->setCurrentIndex(1);
        QTest::mouseClick(dialog.findChild<QPushButton*>("bOk"), Qt::LeftButton);
        QCOMPARE(changed.count(), 1);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(AppGlobals::languageIndex, 1);
        QCOMPARE(child<QPushButton>("bFilelist")->text(),
                 QCoreApplication::translate("ui_mainWindow", "Recordings"));
        QVERIFY(child<QPushButton>("bFilelist")->text() != QString("Recordings"));
        QCOMPARE(child<QPushButton>("bFolder")->toolTip(),
                 QCoreApplication::translate("TavShortcutTable", "Open folder"));
        QVERIFY(child<QPushButton>("bFolder")->toolTip() != QString("Open folder"));
        QVERIFY(child<QLabel>("textState")->text() != QString("  All Type")); // the type filter
        QVERIFY(child<QPushButton>("user")->text() != QString("User"));

        // Back to English for the other tests.
        AppGlobals::languageIndex = 0;
        AppGlobals::installTranslation(0);
        emit m_window->onSendChangeLanguage();
        QCOMPARE(child<QPushButton>("bFilelist")->text(), QString("Recordings"));
        QCOMPARE(child<QLabel>("textState")->text(), QString("  All Type"));
    }

    // ---- Description files ----

    void missingOrBrokenFileHidesEveryChild() {
        UiDescription ui;
        QVERIFY(!ui.open("NoSuchView"));
        QCOMPARE(ui.item("centralWidget").status, -1);

        writeView("{ \"a\": { \"show\": true, ");
        QVERIFY(!ui.open(m_view));
        QCOMPARE(ui.item("a").status, -1);

        writeView("[1, 2, 3]");
        QVERIFY(!ui.open(m_view));

        QWidget widget;
        widget.show();
        QVERIFY(!UiApplier::apply(&widget, "a", ui.item("a"), QString()));
        QVERIFY(widget.isHidden());
        QVERIFY(!widget.isEnabled());
    }

    void everyKeyIsRead() {
        writeView(
            R"({"panel": {"position": {"x": 12, "y": 34}, "size": {"width": 200, "height": 100},
            "minimum": {"width": 50, "height": 40}, "maximum": {"width": -1, "height": -1},
            "margin": {"left": 1, "top": 2, "right": 3, "bottom": 4},
            "scale": {"x": "Movable", "y": "Minimum", "width": "Stretch", "height": "Fixed"},
            "font": {"family": "Noto Sans", "weight": "Bold", "size": 13},
            "color": {"Default": "gray", "Hover": "silver"}, "textColor": {"Select": "white"},
            "image": {"Default": "panel.svg"}, "border": {"Disable": "black"},
            "show": true, "enable": true, "text": "Open folder"},
          "oddWeight": {"font": {"weight": "Heavy", "size": 0}},
          "halfMaximum": {"maximum": {"width": -1}}, "bare": {},
          "wrongTypes": {"position": {"x": "10"}, "show": 1, "size": [1]}})");
        UiDescription ui;
        QVERIFY(ui.open(m_view));
        // Keys left out, or of the wrong type, keep their defaults.
        for (const char* name : {"bare", "wrongTypes"}) {
            const UiItem item = ui.item(name);
            QCOMPARE(item.status, 0);
            QVERIFY(!item.show && !item.enable && item.x == 0);
            QVERIFY(!item.size.isValid() && !item.maximum.isValid());
            QCOMPARE(item.scaleHeight, 3);
            QCOMPARE(item.textColor[UiItem::Hover], QString("#000000"));
            QVERIFY(item.color[UiItem::Default].isEmpty());
            QCOMPARE(item.image[UiItem::Disable], QString("none"));
        }
        QCOMPARE(ui.item("missing").status, -1);
        const UiItem item = ui.item("panel");
        QCOMPARE(QRect(item.x, item.y, item.size.width(), item.size.height()),
                 QRect(12, 34, 200, 100));
        QCOMPARE(item.minimum, QSize(50, 40));
        QCOMPARE(item.maximum, QSize(7680, 4320)); // -1: as large as a screen gets
        QCOMPARE(QMargins(item.marginLeft, item.marginTop, item.marginRight, item.marginBottom),
                 QMargins(1, 2, 3, 4));
        QCOMPARE((QList<int>{item.scaleX, item.scaleY, item.scaleWidth, item.scaleHeight}),
                 (QList<int>{4, 1, -1, 0}));
        QCOMPARE(item.font.family(), QString("Noto Sans"));
        QCOMPARE(item.font.weight(), 75);
        QCOMPARE(item.font.pixelSize(), 13);
        QCOMPARE((QStringList{item.color[UiItem::Default], item.color[UiItem::Hover],
                              item.color[UiItem::Select], item.textColor[UiItem::Select],
                              item.image[UiItem::Default], item.border[UiItem::Disable]}),
                 (QStringList{"gray", "silver", "", "white", "panel.svg", "black"}));
        QVERIFY(item.show && item.enable);
        QCOMPARE(item.text, QString("Open folder"));
        const UiItem odd = ui.item("oddWeight");
        QCOMPARE(odd.font.weight(), QFont().weight());
        QCOMPARE(odd.font.pixelSize(), QFont().pixelSize());
        QCOMPARE(ui.item("halfMaximum").maximum, QSize(7680, -1));
    }

    void applyingPlacesShowsAndStyles() {
        writeView(R"({"shown": {"position": {"x": 5, "y": 6}, "size": {"width": 70, "height": 30},
                      "margin": {"left": 2, "top": 2, "right": 2, "bottom": 2},
                      "image": {"Default": "a.svg", "Hover": "b.svg"},
                      "color": {"Default": "navy"}, "show": true, "enable": true},
            "disabledButShown": {"show": true, "enable": false},
            "enabledButHidden": {"show": false, "enable": true}})");
        UiDescription ui;
        QVERIFY(ui.open(m_view));
        QWidget parent;
        parent.resize(300, 200);
        auto* shown = new QPushButton(&parent);
        auto* disabled = new QWidget(&parent);
        auto* hidden = new QWidget(&parent);
        parent.show();

        const UiItem item = ui.item("shown");
        QVERIFY(UiApplier::apply(shown, "shown", item,
                                 UiApplier::buttonStyleSheet(item, ui.imageFolder())));
        QCOMPARE(shown->objectName(), QString("shown"));
        QCOMPARE(shown->geometry(), QRect(5, 6, 70, 30));
        QCOMPARE(shown->contentsMargins(), QMargins(2, 2, 2, 2));
        QVERIFY(shown->isVisible());
        const QString style = shown->styleSheet();
        QVERIFY2(style.contains("QPushButton{border: none; border-image: url(\"" +
                                ui.imageFolder() + "a.svg\")"),
                 qPrintable(style));
        QVERIFY(style.contains("QPushButton:hover{border-image: url(\"" + ui.imageFolder() +
                               "b.svg\")"));
        QVERIFY(style.contains("background: navy"));

        QVERIFY(!UiApplier::apply(disabled, "disabledButShown", ui.item("disabledButShown"),
                                  QString()));
        QVERIFY(disabled->isHidden() && !disabled->isEnabled());
        QVERIFY(
            UiApplier::apply(hidden, "enabledButHidden", ui.item("enabledButHidden"), QString()));
        QVERIFY(hidden->isHidden() && hidden->isEnabled());
    }

    // ---- Messages and questions ----

    void messageShowsItsTextInTheDarkLook() {
        QString text;
        int light = -1;
        whenModal([&](QWidget* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(box);
            text = box->text();
            light = brightness(box);
            QVERIFY(box->button(QMessageBox::Ok));
            // The button itself is dark too, and carries no picture.
            QVERIFY(brightness(box->button(QMessageBox::Ok)) < 100);
            QVERIFY(box->button(QMessageBox::Ok)->icon().isNull());
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        });
        TavPrompt::inform(m_parent, QStringLiteral("Item is exist!"));
        QCOMPARE(text, QStringLiteral("Item is exist!"));
        QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));

        // Over a small dialog, with a long path: no wider than the dialog, below its title.
        QDialog dialog(m_window);
        dialog.setGeometry(300, 200, 360, 220);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QRect box;
        whenModal([&](QWidget* shown) {
            QTRY_VERIFY(shown->isVisible());
            box = shown->frameGeometry();
            text = qobject_cast<QMessageBox*>(shown)->text();
        });
        const QString path = "/home/someone/Pictures/ZENTA/20240612_081502_INF_1_1_941276.jpg";
        TavPrompt::inform(&dialog, "Complete to Save Snapshot!\n" + path);
        const QRect frame = dialog.frameGeometry();
        QVERIFY2(box.width() <= frame.width() && box.top() >= frame.top() + 40 &&
                     box.left() >= frame.left() - 1,
                 qPrintable(QStringLiteral("box %1,%2 %3x%4")
                                .arg(box.x())
                                .arg(box.y())
                                .arg(box.width())
                                .arg(box.height())));
        QCOMPARE(text.remove('\n'), "Complete to Save Snapshot!" + path);
    }

    // Yes is the only yes: No, and Escape, are not; No is the default.
    void questionAnswersYesOnlyForYes() {
        for (int press : {int(QMessageBox::Yes), int(QMessageBox::No), 0}) {
            QString title;
            int light = -1;
            whenModal([&](QWidget* dialog) {
                auto* box = qobject_cast<QMessageBox*>(dialog);
                QVERIFY(box && box->defaultButton() == box->button(QMessageBox::No));
                title = box->windowTitle();
                light = brightness(box);
                if (press == 0)
                    QTest::keyClick(dialog, Qt::Key_Escape);
                else
                    QTest::mouseClick(box->button(QMessageBox::StandardButton(press)),
                                      Qt::LeftButton);
            });
            QCOMPARE(TavPrompt::ask(m_parent, QStringLiteral("Delete?")),
                     press == QMessageBox::Yes);
            QCOMPARE(title, QStringLiteral("Warning"));
            QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));
        }
    }

    void folderDialogIsDarkAndCancelGivesNothing() {
        int light = -1;
        whenModal([&](QWidget* dialog) {
            QVERIFY(qobject_cast<QFileDialog*>(dialog));
            light = brightness(dialog);
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QCOMPARE(TavPrompt::openFolder(m_parent, QStringLiteral("Open Folder")), QString());
        QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));
    }

    // One click on a type button filters the list; the filter's face and pop-up follow.
    void typeButtonsFilterWithOneClick() {
        QTemporaryDir folder;
        QStringList paths;
        for (const char* name : {"20240101_100000_INF_1.mp4", "20240101_100100_EVT_1.mp4",
                                 "20240101_100200_PRK_1.mp4", "20240101_100300_USR_1.mp4"}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            paths << file.fileName();
        }
        emit m_window->onSendFileList(paths);
        QTRY_COMPARE(RecordingList::records.size(), 4);
        auto* list = m_window->findChild<TavTypeList*>();
        QTest::mouseClick(child<TavTypeButton>("bParking"), Qt::LeftButton);
        QCOMPARE(RecordingList::visibleRows, QVector<int>{2});
        QCOMPARE(child<QLabel>("textState")->text(), QString("  Filter"));
        QCOMPARE(list->mask(), 4);
        QVERIFY(child<TavTypeButton>("bParking")->isChecked());
        QVERIFY(!child<TavTypeButton>("bAllType")->isChecked());
        QTest::mouseClick(child<TavTypeButton>("bParking"), Qt::LeftButton); // stays chosen
        QVERIFY(child<TavTypeButton>("bParking")->isChecked());
        QTest::mouseClick(child<TavTypeButton>("bAllType"), Qt::LeftButton);
        QCOMPARE(RecordingList::visibleRows.size(), 4);
        QCOMPARE(child<QLabel>("textState")->text(), QString("  All Type"));
        QCOMPARE(list->mask(), 15);
        // A choice in the pop-up that no button stands for leaves none of them chosen; a
        // new load keeps the choice.
        list->toggle(8)->click();
        QCOMPARE(RecordingList::visibleRows.size(), 3);
        emit m_window->onSendFileList(paths);
        QTRY_COMPARE(RecordingList::records.size(), 4);
        QCOMPARE(RecordingList::visibleRows, (QVector<int>{0, 1, 2}));
        for (const char* name : {"bAllType", "bInfinity", "bParking", "bEvent"})
            QVERIFY2(!child<TavTypeButton>(name)->isChecked(), name);
        emit m_window->onSendClear();
        QVERIFY(RecordingList::records.isEmpty());
        list->toggle(8)->click();
    }

    // The window's routes between the views, row by row: each is found (and taken away, so
    // this runs last) by the sender, signal, receiver and slot or signal it joins.
    void everyRouteOfTheWiringIsMade() {
        MainWindow* const self = m_window;
        PlayerInterface* const player = m_window->player();
        auto* topBar = child<TopBar>("topBar");
        auto* shortcuts = m_window->findChild<TavShortcutTable*>();
        auto* control = child<PlayControlView>("ControlView");
        auto* map = m_window->findChild<MapView*>();
        auto* list = m_window->findChild<TavFileListItem*>();
        auto* combo = m_window->findChild<TavFileComboBox*>();
        auto* typeList = m_window->findChild<TavTypeList*>();
        auto* screen = child<PlayScreenWindow>("PlayScreenView");
        auto* back = m_window->findChild<SubSceneBackWidget*>();
        auto* sub1 = child<SubPlayerWindow>("subPlayerWindow1");
        auto* sub2 = child<SubPlayerWindow>("subPlayerWindow2");
        auto* drives = m_window->findChild<DrivePlayback*>();
        auto* driveList = m_window->findChild<DriveListView*>();
        QVERIFY(player && topBar && shortcuts && control && map && list && combo && typeList &&
                screen && back && sub1 && sub2 && drives && driveList);
        QStringList missing;
#define ROUTE(sender, signal, receiver, slot)                                                      \
    if (!QObject::disconnect(sender, &signal, receiver, &slot))                                    \
    missing << QStringLiteral(#sender " " #signal " -> " #receiver " " #slot)
        ROUTE(player, PlayerInterface::onSendLogoSet, self, MainWindow::onShowLogo);
        ROUTE(player, PlayerInterface::onSetBlockEvent, self, MainWindow::onBlockEvent);
        ROUTE(player, PlayerInterface::onSendShowWindow, self, MainWindow::onShowPlayWindow);
        ROUTE(topBar, TopBar::onClickMaximized, self, MainWindow::onShowMaximized);
        ROUTE(topBar, TopBar::onClickMinimized, self, MainWindow::onShowMinimized);
        ROUTE(topBar, TopBar::onClick_bFullScreen, self, MainWindow::onRecvFullScreen);
        ROUTE(topBar, TopBar::onClickAlwaysViewTop, self, MainWindow::onFixedTopScreen);
        ROUTE(topBar, TopBar::onSendUpdate, self, MainWindow::onUpdateMonitorSize);
        ROUTE(self, MainWindow::onSendAlwaysTopUiChange, topBar, TopBar::onChangeAlwaysTopUi);
        ROUTE(shortcuts, TavShortcutTable::onSendSignalFolder, list,
              TavFileListItem::onOpenFolderDlg);
        ROUTE(shortcuts, TavShortcutTable::onSendSignalMemory, self, MainWindow::openSDCardDlg);
        ROUTE(shortcuts, TavShortcutTable::onSendSignalPrint, self, MainWindow::openPrintDlg);
        ROUTE(shortcuts, TavShortcutTable::onSendSignalLanguage, self, MainWindow::openLangaugeDlg);
        ROUTE(shortcuts, TavShortcutTable::onSendCapture, control,
              PlayControlView::onClick_bCapture);
        ROUTE(shortcuts, TavShortcutTable::onSendSignalSetting, self, MainWindow::openSettingDlg);
        ROUTE(shortcuts, TavShortcutTable::onSendSignalAbout, self, MainWindow::openAboutDlg);
        ROUTE(child<QPushButton>("bFilelist"), QPushButton::clicked, self,
              MainWindow::onRaiseFilelist);
        ROUTE(child<QPushButton>("bMap"), QPushButton::clicked, self, MainWindow::onRaiseMap);
        for (const char* name : {"bAllType", "bInfinity", "bParking", "bEvent"}) {
            ROUTE(child<TavTypeButton>(name), TavTypeButton::onSendCheckedType, self,
                  MainWindow::onTypeFilter);
        }
        ROUTE(self, MainWindow::onSendSelectType, combo, TavFileComboBox::onUpdateSetData);
        ROUTE(self, MainWindow::onSendMapShow, map, MapView::onMapShow);
        ROUTE(control, PlayControlView::onSendRefreshImage, self, MainWindow::onGetImage);
        ROUTE(self, MainWindow::onSendSetPause, control, PlayControlView::onSetPause);
        ROUTE(self, MainWindow::onSendStop, player, PlayerInterface::onClickStop);
        if (!QObject::disconnect(control, &PlayControlView::onSendOpenFile, player,
                                 qOverload<>(&PlayerInterface::checkFileReady)))
            missing << "control onSendOpenFile -> player checkFileReady()";
        ROUTE(control, PlayControlView::onSendPlay, player, PlayerInterface::onPlay);
        ROUTE(control, PlayControlView::onClickedPause, player, PlayerInterface::onPause);
        ROUTE(control, PlayControlView::onClickedStop, player, PlayerInterface::onClickStop);
        ROUTE(control, PlayControlView::onSendStop, player, PlayerInterface::onStop);
        ROUTE(control, PlayControlView::onClicked5sMove, player, PlayerInterface::on5sMove);
        ROUTE(control, PlayControlView::onClickMoveFrame, player, PlayerInterface::onFrameMove);
        // Moves, steps and ends pass through the drive that plays, if any.
        ROUTE(control, PlayControlView::onChangePlayPosition, drives, DrivePlayback::onSeek);
        ROUTE(drives, DrivePlayback::seekInRecording, player, PlayerInterface::onPlayPosMove);
        ROUTE(drives, DrivePlayback::stopRequested, player, PlayerInterface::onStop);
        ROUTE(player, PlayerInterface::onSetPlayData, drives, DrivePlayback::onRecordingSet);
        if (!QObject::disconnect(drives, &DrivePlayback::playFile, player,
                                 qOverload<const QString&>(&PlayerInterface::checkFileReady)))
            missing << "drives playFile -> player checkFileReady(file)";
        ROUTE(child<QPushButton>("bDrives"), QPushButton::clicked, self, MainWindow::onRaiseDrives);
        ROUTE(control, PlayControlView::onSendChangeSpeed, player, PlayerInterface::onControlSpeed);
        ROUTE(control, PlayControlView::onClickedMute, player, PlayerInterface::onSetMute);
        ROUTE(control, PlayControlView::onSendVolumeChange, player,
              PlayerInterface::onControlVolume);
        ROUTE(control, PlayControlView::onClickedFlip, player, PlayerInterface::onFlip);
        ROUTE(control, PlayControlView::onSendStopTimer, player, PlayerInterface::onStopTimer);
        ROUTE(control, PlayControlView::onSendRestartTimer, player,
              PlayerInterface::onRestartTimer);
        ROUTE(control, PlayControlView::onClickedDelete, list,
              TavFileListItem::onDeleteCurrentFile);
        ROUTE(player, PlayerInterface::onSetPlayData, topBar, TopBar::setFileName);
        ROUTE(player, PlayerInterface::onSetTextData, map, MapView::onLoadMap);
        ROUTE(player, PlayerInterface::onTimeout_500ms, map, MapView::onUpdateMap);
        ROUTE(player, PlayerInterface::onSetPlayData, control, PlayControlView::onSetPlayData);
        ROUTE(player, PlayerInterface::onTimeout_500ms, control, PlayControlView::onUpdateSlider);
        ROUTE(player, PlayerInterface::onUpdateTimeNow, control, PlayControlView::onUpdateSlider);
        ROUTE(player, PlayerInterface::onSetTextData, control, PlayControlView::onSendLoadChart);
        ROUTE(player, PlayerInterface::onTimeout_500ms, control,
              PlayControlView::onSendUpdateChart);
        ROUTE(player, PlayerInterface::onSendClear, topBar, TopBar::unsetFileName);
        ROUTE(player, PlayerInterface::onSendClear, map, MapView::onClearData);
        ROUTE(player, PlayerInterface::onSendClear, control, PlayControlView::onSendClear);
        ROUTE(self, MainWindow::onSendClear, topBar, TopBar::unsetFileName);
        ROUTE(self, MainWindow::onSendClear, map, MapView::onClearData);
        ROUTE(self, MainWindow::onSendClear, control, PlayControlView::onSendClear);
        ROUTE(self, MainWindow::onSendClear, list, TavFileListItem::onDeleteAllFileAtList);
        ROUTE(player, PlayerInterface::onTimeout_1s, screen, PlayScreenWindow::onSetZoom);
        ROUTE(self, MainWindow::onSendZoomReset, screen, PlayScreenWindow::onResetZoom);
        ROUTE(player, PlayerInterface::onSendZoomReset, screen, PlayScreenWindow::onResetZoom);
        ROUTE(self, MainWindow::onSendChangeLanguage, shortcuts,
              TavShortcutTable::onChangeToolTipLanguage);
        ROUTE(self, MainWindow::onSendChangeLanguage, combo, TavFileComboBox::onChangeLanguage);
        ROUTE(self, MainWindow::onSendChangeLanguage, typeList, TavTypeList::onChangeLanguage);
        ROUTE(self, MainWindow::onSendChangeLanguage, self, MainWindow::onChangeTextByLanguage);
        ROUTE(combo, TavFileComboBox::onSendTypeListControl, typeList,
              TavTypeList::onControlTypeList);
        ROUTE(list, TavFileListItem::onSendHideTypeList, typeList, TavTypeList::onHideTypeList);
        ROUTE(self, MainWindow::onSendHideTypeList, typeList, TavTypeList::onHideTypeList);
        // The pop-up's chosen types go to the filter's face, and whether it is open to the
        // face's button.
        ROUTE(typeList, TavTypeList::onSendCurrentType, combo, TavFileComboBox::onUpdateSetData);
        ROUTE(typeList, TavTypeList::onSendTypeListSet, combo, TavFileComboBox::onUpdateListState);
        ROUTE(self, MainWindow::onSendFileList, list, TavFileListItem::onReceiveFileList);
        ROUTE(self, MainWindow::onSendStopItemThread, list, TavFileListItem::onSendThreadStop);
        ROUTE(list, TavFileListItem::onSendFinishReadFileTime, list,
              TavFileListItem::onFinishReadFileTime);
        ROUTE(list, TavFileListItem::onSendRefreshFilter, combo, TavFileComboBox::onUpdateList);
        ROUTE(combo, TavFileComboBox::onSendFileTypeFilter, list, TavFileListItem::onSortFile);
        if (!QObject::disconnect(list, &TavFileListItem::doubleClickedItem, player,
                                 qOverload<const QString&>(&PlayerInterface::checkFileReady)))
            missing << "list doubleClickedItem -> player checkFileReady(file)";
        ROUTE(list, TavFileListItem::onSendPause, control, PlayControlView::onSetPause);
        ROUTE(list, TavFileListItem::onSendStop, player, PlayerInterface::onStop);
        ROUTE(list, TavFileListItem::onSendLogoSet, self, MainWindow::onShowLogo);
        ROUTE(list, TavFileListItem::onSetBlockEvent, self, MainWindow::onBlockEvent);
        ROUTE(player, PlayerInterface::onSendFileAllDelete, list,
              TavFileListItem::onDeleteAllFileAtList);
        ROUTE(self, MainWindow::onSendBlockEvent, list, TavFileListItem::onBlockEvent);
        ROUTE(self, MainWindow::onSendBlockEvent, control, PlayControlView::onBlockEvent);
        ROUTE(control, PlayControlView::onCallNextFile, drives, DrivePlayback::onForward);
        ROUTE(drives, DrivePlayback::forwardToList, list, TavFileListItem::onForwardItemSet);
        ROUTE(drives, DrivePlayback::ended, list, TavFileListItem::onEndOfPlayback);
        ROUTE(control, PlayControlView::onChangePlayFile, drives, DrivePlayback::onStep);
        ROUTE(drives, DrivePlayback::stepInList, list, TavFileListItem::onChangePlayItem);
        ROUTE(drives, DrivePlayback::noMore, list, TavFileListItem::onNoMoreItem);
        ROUTE(list, TavFileListItem::rowsChanged, drives, DrivePlayback::clear);
        ROUTE(combo, TavFileComboBox::onSendFileTypeFilter, driveList, DriveListView::onTypeMask);
        ROUTE(player, PlayerInterface::onSendPlayNextFile, control,
              PlayControlView::onRecvPlayNextFile);
        ROUTE(player, PlayerInterface::onSendPlayPreviusFile, control,
              PlayControlView::onRecvPlayBackFile);
        ROUTE(player, PlayerInterface::onSendSetPlayButton, control,
              PlayControlView::onSetPlayButton);
        ROUTE(player, PlayerInterface::onSetPlayData, self, MainWindow::onRecvRefresh);
        for (SubPlayerWindow* sub : {sub1, sub2}) {
            ROUTE(player, PlayerInterface::onInitResizeView, sub, SubPlayerWindow::onResetView);
            ROUTE(sub, SubPlayerWindow::sendVideoResize, player, PlayerInterface::onResizeVideo);
            ROUTE(sub, SubPlayerWindow::onChangeView, self, MainWindow::onChangeSceneView);
            ROUTE(sub, SubPlayerWindow::onClickedFlip, player, PlayerInterface::onFlip);
        }
        ROUTE(back, SubSceneBackWidget::onSendBlockKeyboardEvent, self,
              MainWindow::onBlockKeyboardEvent);
        ROUTE(player, PlayerInterface::onSendClear, back, SubSceneBackWidget::ClearPosition);
        // The dialogs about the current picture pause and resume through the window's routes.
        auto* exports = m_window->findChild<ExportSession*>();
        ROUTE(exports, ExportSession::onSendSetPause, self, MainWindow::onSendSetPause);
        ROUTE(exports, ExportSession::onSendResume, control, PlayControlView::onClick_bPlay);
        ROUTE(exports, ExportSession::onSendShowMap, self, MainWindow::onRaiseMap);
        ROUTE(exports, ExportSession::onSendShowList, self, MainWindow::onShowFilelist);
        // The settings dialog's speed unit reaches the map at once.
        ROUTE(m_window->findChild<CardSession*>(), CardSession::onSendSpeedUnit, map,
              MapView::onSetSpeedUnit);
#undef ROUTE
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
    }
};

TAVORIC_WEB_TEST_MAIN(TestMainWindow)
#include "test_mainwindow.moc"
