// Playing recordings as a user does, on the real main window with real libvlc.
#include "AppGlobals.h"
#include "CardFixture.h"
#include "ConfigAccess.h"
#include "MainWindow.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "PrintChannelSelectView.h"
#include "PrintView.h"
#include "SDCardView.h"
#include "SaveAsView.h"
#include "SubPlayerWindow.h"
#include "SubSceneBackWidget.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavPlayButton.h"
#include "TavPlaySlider.h"
#include "TavPrompt.h"
#include "TavTypeList.h"
#include "TopBar.h"
#include "VLCComponent.h"

#include <QApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSettings>
#include <QTableWidgetItem>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

#include "WebTestMain.h"

namespace {
const QString kMedia = QStringLiteral(PLAYBACK_MEDIA);

// The colour on screen in the middle of a widget.
QRgb screenColour(QWidget* widget) {
    const QPoint centre =
        widget->mapToGlobal(widget->rect().center() + QPoint(0, widget->height() / 4));
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    return screen.pixel(centre);
}
// The side of the frame number (white, top third in front, bottom third at the rear): +1 left,
// -1 right, 0 none.
// Pixels in hidden (a frame over the scene) do not count.
int frameNumberSide(const QImage& screen, const QRect& area, bool front,
                    const QRect& hidden = QRect()) {
    const int top = front ? area.top() : area.bottom() - area.height() / 3;
    int left = 0;
    int right = 0;
    for (int y = top; y <= top + area.height() / 3; ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (hidden.contains(x, y))
                continue;
            const QRgb c = screen.pixel(x, y);
            if (qRed(c) > 200 && qGreen(c) > 200 && qBlue(c) > 200)
                ++(x < area.center().x() ? left : right);
        }
    }
    if (left > 20 && right < left / 10)
        return 1;
    if (right > 20 && left < right / 10)
        return -1;
    return 0;
}
int frameNumberSide(QWidget* widget, bool front, const QRect& hidden = QRect()) {
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    return frameNumberSide(screen, QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()), front,
                           hidden);
}
bool isRed(QRgb c) {
    return qRed(c) > 150 && qGreen(c) < 100 && qBlue(c) < 100;
}
bool isGreen(QRgb c) {
    return qGreen(c) > 150 && qRed(c) < 100 && qBlue(c) < 100;
}
bool isBlue(QRgb c) {
    return qBlue(c) > 150 && qRed(c) < 100 && qGreen(c) < 100;
}
// Acts on the modal dialog of type T once it is up, from inside its own event loop, as a
// user would; gives up after ten seconds.
template <typename T> void whenModal(std::function<void(T*)> act) {
    auto* timer = new QTimer;
    auto tries = std::make_shared<int>(0);
    QObject::connect(timer, &QTimer::timeout, [timer, act, tries] {
        auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget());
        if (dialog == nullptr && ++*tries < 200)
            return;
        timer->stop();
        timer->deleteLater();
        if (dialog != nullptr)
            act(dialog);
    });
    timer->start(50);
}
} // namespace

class TestPlaythrough : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    MainWindow* m_window = nullptr;
    TavFileListItem* m_list = nullptr;
    PlayScreenWindow* m_main = nullptr; // the main scene and the two rear scenes
    SubPlayerWindow* m_rear1 = nullptr;
    SubPlayerWindow* m_rear2 = nullptr;

    // The side of the main scene's frame number, as far as the rear scenes' frame leaves
    // the scene in view.
    int mainSide() const {
        auto* frame = m_window->findChild<SubSceneBackWidget*>();
        const QRect hidden =
            frame->isVisible() ? QRect(frame->mapToGlobal(QPoint(0, 0)), frame->size()) : QRect();
        return frameNumberSide(m_main, true, hidden);
    }

    void waitForPicture() {
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::playStatus == PlayerInterface::PlayRunning &&
                                     VLCComponent::playerState == VLCComponent::Playing,
                                 15000);
    }
    // Each camera in its own scene, as the user sees it: the front red, the rears green, blue.
    void waitForEachCameraInItsScene() {
        QTRY_VERIFY_WITH_TIMEOUT(isRed(screenColour(m_main)), 3000);
        QTRY_VERIFY_WITH_TIMEOUT(isGreen(screenColour(m_rear1)), 3000);
        QTRY_VERIFY_WITH_TIMEOUT(isBlue(screenColour(m_rear2)), 3000);
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.path();
        AppGlobals::programFolder = QCoreApplication::applicationDirPath();
        AppGlobals::resourcesFolder = AppGlobals::programFolder + "/Resources";
        AppGlobals::settings = new QSettings(m_dir.filePath("settings.ini"), QSettings::IniFormat);
        AppGlobals::settings->setValue("agreement", "1");
        AppGlobals::translator = new QTranslator;
        m_window = new MainWindow;
        m_window->move(0, 0);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        m_list = m_window->findChild<TavFileListItem*>();
        m_main = m_window->findChild<PlayScreenWindow*>();
        m_rear1 = m_window->findChild<SubPlayerWindow*>("subPlayerWindow1");
        m_rear2 = m_window->findChild<SubPlayerWindow*>("subPlayerWindow2");
        QVERIFY(m_list && m_main && m_rear1 && m_rear2);
    }

    void cleanupTestCase() { delete m_window; }

    void commandLineFolderPlaysTheFirstRecording() {
        m_window->openPaths({kMedia});
        // One row per recording; a one-file recording's count comes with its length.
        QCOMPARE(RecordingList::records.size(), 3);
        QTRY_COMPARE_WITH_TIMEOUT(RecordingList::records.at(2).cameraCount, 3, 10000);
        QCOMPARE(RecordingList::records.at(0).cameraCount, 3);
        QCOMPARE(RecordingList::records.at(1).cameraCount, 2);
        QCOMPARE(m_list->item(1, TavFileListItem::NameColumn)->text(),
                 QString("20240301_091000_EVT"));
        QVERIFY(PlayerInterface::currentFile.endsWith("20240301_090000_INF_1.mp4"));
        waitForPicture();
        QCOMPARE(m_window->findChild<TopBar*>()->fileName(), QString("20240301_090000_INF_1.mp4"));

        QTRY_VERIFY(m_rear2->isVisible());
        waitForEachCameraInItsScene();
        // The rear scenes' frame leaves the bottom of the front picture free, where cameras
        // burn in their date and time.
        auto* frame = m_window->findChild<SubSceneBackWidget*>();
        const QRect scene(m_main->mapToGlobal(QPoint(0, 0)), m_main->size());
        const int picture = std::min(scene.height(), scene.width() * 9 / 16);
        const QRect stamp(scene.left(), scene.center().y() + picture / 2 - picture / 8,
                          scene.width(), picture / 8);
        QVERIFY(!QRect(frame->mapToGlobal(QPoint(0, 0)), frame->size()).intersects(stamp));
        // Held still from here on, so that the five-second recording is still the one on
        // screen however long the checks take.
        m_window->player()->onPause();
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
    }

    void typePopUpClosesOnAClickOnTheVideo() {
        auto* popup = m_window->findChild<TavTypeList*>();
        QTest::mouseClick(m_window->findChild<TavFileComboBox*>(), Qt::LeftButton);
        QTRY_VERIFY(popup->isVisible());
        QTest::mouseClick(m_main->scene(), Qt::LeftButton, {}, m_main->scene()->rect().center());
        QTRY_VERIFY(!popup->isVisible());
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
    }

    void rearCameraSwapsIntoTheMainScene() {
        auto* arrow = m_rear1->findChild<QPushButton*>("arrow");
        QVERIFY(arrow && arrow->isVisible());
        QTest::mouseClick(arrow, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(isGreen(screenColour(m_main)), 3000);
        QTRY_VERIFY_WITH_TIMEOUT(isRed(screenColour(m_rear1)), 3000);
        QCOMPARE(m_main->id(), 1);
        // The main scene still zooms, whichever camera it shows.
        QVERIFY(m_main->scene()->parentWidget() == m_main);
        QTest::mouseClick(arrow, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(isRed(screenColour(m_main)), 3000);
        QTRY_VERIFY_WITH_TIMEOUT(isGreen(screenColour(m_rear1)), 3000);
        QCOMPARE(m_main->id(), 0);
    }

    void flipMirrorsOneScene() {
        // Paused, so every player has to come back to the paused picture after a flip. The
        // rear scenes are moved down, as a user drags them, off the corner where the front
        // camera's number shows mirrored.
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        auto* frame = m_window->findChild<SubSceneBackWidget*>();
        frame->move(frame->x(), frame->parentWidget()->height() - frame->height() - 220);
        QTRY_COMPARE_WITH_TIMEOUT(frameNumberSide(m_rear1, false), 1, 3000);
        QTRY_COMPARE_WITH_TIMEOUT(mainSide(), 1, 3000);

        QTest::mouseClick(m_rear1->findChild<QPushButton*>("bFlip"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(frameNumberSide(m_rear1, false), -1, 5000);
        QVERIFY(isGreen(screenColour(m_rear1)));
        QVERIFY(m_rear1->findChild<QPushButton*>("bFlip")->isChecked());
        QCOMPARE(mainSide(), 1);
        QCOMPARE(frameNumberSide(m_rear2, false), 1);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        // Still paused: the mirrored player comes to rest after drawing its first picture.
        VLCComponent* engine = m_window->player()->engine();
        double rearTime = -1;
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                rearTime = engine->GetChannelTime(1);
                QTest::qWait(400);
                return engine->GetChannelTime(1) == rearTime;
            }(),
            3000);
        QTest::qWait(600);
        QCOMPARE(engine->GetChannelTime(1), rearTime);

        // The panel's button mirrors the front camera, which carries the sound.
        auto* panelFlip = m_window->findChild<QPushButton*>("bFlip");
        QVERIFY(panelFlip &&
                panelFlip->parentWidget() == m_window->findChild<QWidget*>("ControlView"));
        QTest::mouseClick(panelFlip, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(mainSide(), -1, 5000);
        QVERIFY(isRed(screenColour(m_main)));

        // Capture saves every camera's picture as shown, mirrored or not.
        QTemporaryDir pictures;
        QStringList messages;
        TavPrompt::informHook = [&messages](const QString& text) { messages << text; };
        whenModal<SaveAsView>([&pictures](SaveAsView* dialog) {
            dialog->findChild<QPushButton*>("bSaveSnapshot")->click();
            dialog->findChild<QLineEdit*>("editPath")->setText(pictures.path());
            dialog->findChild<QPushButton*>("bSave")->click();
        });
        QTest::mouseClick(m_window->findChild<QPushButton*>("bCapture"), Qt::LeftButton);
        // Nothing written over the pictures the snapshots were taken of.
        QCOMPARE(mainSide(), -1);
        QCOMPARE(frameNumberSide(m_rear2, false), 1);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages.at(0).startsWith("Complete to Save Snapshot!"),
                 qPrintable(messages.at(0)));
        QCOMPARE(AppGlobals::snapshotPath, pictures.path());
        AppGlobals::snapshotPath.clear();
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        const QStringList files =
            QDir(pictures.path()).entryList({"*.jpg"}, QDir::Files, QDir::Name);
        QCOMPARE(files.size(), 3);
        bool (*const colours[])(QRgb) = {isRed, isGreen, isBlue};
        const int sides[] = {-1, -1, 1};
        for (int i = 0; i < 3; ++i) {
            QVERIFY2(files[i].startsWith(QString("20240301_090000_INF_1_%1_").arg(i + 1)),
                     qPrintable(files[i]));
            const QImage image(pictures.filePath(files[i]));
            QCOMPARE(image.size(), QSize(1920, 1080));
            QVERIFY(colours[i](image.pixel(960, 540)));
            QCOMPARE(frameNumberSide(image, image.rect(), i == 0), sides[i]);
        }

        // The report of a rear camera, saved as PDF, shows that camera's picture.
        QTemporaryDir reports;
        const QString pdf = reports.filePath("report.pdf");
        TavPrompt::saveFileHook = [&pdf](const QString&) { return pdf; };
        whenModal<PrintChannelSelectView>([](PrintChannelSelectView* choice) {
            whenModal<PrintView>([](PrintView* report) {
                report->findChild<QPushButton*>("bSavePdf")->click();
                report->findChild<QPushButton*>("bCancel")->click();
            });
            choice->findChild<QRadioButton*>("item3")->click();
            choice->findChild<QPushButton*>("bOk")->click();
        });
        QTest::mouseClick(m_window->findChild<QPushButton*>("bPrint"), Qt::LeftButton);
        TavPrompt::informHook = nullptr;
        TavPrompt::saveFileHook = nullptr;
        QVERIFY2(messages.last().startsWith("The report is saved:"), qPrintable(messages.last()));
        QCOMPARE(QProcess::execute("pdftoppm", {"-r", "48", "-png", "-singlefile", pdf,
                                                reports.filePath("page")}),
                 0);
        const QImage page(reports.filePath("page.png"));
        QVERIFY(!page.isNull());
        QVERIFY(isBlue(page.pixel(page.width() / 2, page.height() / 4)));
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));

        // Back as recorded, and playing on in step.
        QTest::mouseClick(m_rear1->findChild<QPushButton*>("bFlip"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(frameNumberSide(m_rear1, false), 1, 5000);
        m_window->player()->onPlay();
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayRunning));
        QTRY_VERIFY_WITH_TIMEOUT(engine->GetChannelTime(1) > rearTime, 3000);
        QTRY_VERIFY_WITH_TIMEOUT(
            std::abs(engine->GetChannelTime(1) - engine->GetCurrentPos()) < 400, 3000);

        // While playing: the mirrored camera joins the others and plays on with them.
        QTest::mouseClick(m_rear2->findChild<QPushButton*>("bFlip"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(frameNumberSide(m_rear2, false), -1, 3000);
        QVERIFY(isBlue(screenColour(m_rear2)));
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayRunning));
        QTRY_VERIFY_WITH_TIMEOUT(
            std::abs(engine->GetChannelTime(2) - engine->GetCurrentPos()) < 400, 3000);
        m_window->player()->onPause();
    }

    void keysControlPlayback() {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        QTest::keyClick(m_window, Qt::Key_Space);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayRunning));
        QTest::keyClick(m_window, Qt::Key_Space);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        QTest::keyClick(m_window, Qt::Key_Home);
        QCOMPARE(PlayerInterface::currentTime, 0.0);
        QTest::keyClick(m_window, Qt::Key_Right); // five seconds on: the end, held there
        QCOMPARE(PlayerInterface::currentTime, PlayerInterface::totalTime);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        QCOMPARE(VLCComponent::playerState, int(VLCComponent::Paused));
        QTest::keyClick(m_window, Qt::Key_Home);
        QCOMPARE(PlayerInterface::currentTime, 0.0);
        QTest::keyClick(m_window, Qt::Key_Space);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayRunning));
        // Keys wait while input is blocked (played from the start, so it is the same
        // recording when the panel's test below pauses it).
        m_window->onBlockEvent(true);
        QTest::keyClick(m_window, Qt::Key_Space);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayRunning));
        m_window->onBlockEvent(false);
    }

    // The panel follows the player through the main window's routes.
    void panelFollowsPlayback() {
        auto* bar = m_window->findChild<TavPlaySlider*>("playBar");
        auto* button = m_window->findChild<TavPlayButton*>("bPlay");
        QVERIFY(bar && button && button->isPlaying());
        QCOMPARE(bar->maximum(), int(PlayerInterface::totalTime));
        QCOMPARE(m_window->findChild<QLabel*>("totalTime")->text(),
                 QString("00:%1").arg(int(PlayerInterface::totalTime) / 1000, 2, 10, QChar('0')));
        QTRY_VERIFY_WITH_TIMEOUT(bar->value() >= 1000, 4000);
        QVERIFY(m_window->findChild<QLabel*>("playTime")->text() >= QString("00:01"));
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayPaused));
        QVERIFY(!button->isPlaying());
        const int pausedAt = bar->value();
        QTest::qWait(1200);
        QCOMPARE(bar->value(), pausedAt);
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          QPoint(int(0.7 * (bar->width() - 1)), bar->height() / 2));
        const int sought = bar->value();
        QVERIFY(qAbs(sought - 0.7 * bar->maximum()) < 200);
        QCOMPARE(PlayerInterface::currentTime, double(sought));
        VLCComponent* engine = m_window->player()->engine();
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(engine->GetCurrentPos() - sought) < 500, 3000);
    }

    void stepBackAtTheVeryStartLeavesTheWindowUsable() {
        // Back past the first recording's start: told, stopped at the logo, input taken again.
        QStringList messages;
        TavPrompt::informHook = [&messages](const QString& text) { messages << text; };
        PlayerInterface::currentTime = 0;
        m_window->player()->on5sMove(false);
        QTRY_COMPARE_WITH_TIMEOUT(messages, QStringList{"There is no item."}, 10000);
        TavPrompt::informHook = nullptr;
        QCOMPARE(VLCComponent::playerState, int(VLCComponent::Stopped));
        QTRY_VERIFY(m_window->findChild<QWidget*>("WaitPlayLogo")->isVisible());
        QTest::keyClick(m_window, Qt::Key_Space); // input is taken again: Space plays
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::playStatus == PlayerInterface::PlayRunning,
                                 15000);
        waitForPicture();
    }

    void endOfFileSkipsRowsTheFilterHides() {
        // Event and User only: the playing Infinity row is hidden; its end plays the Event row.
        m_window->player()->onPlayPosMove(int(PlayerInterface::totalTime) - 1500);
        m_list->onSortFile(2 | 8);
        QCOMPARE(m_list->currentPosition(), -1);
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("20240301_091000_EVT_1.mp4"),
                                 15000);
        waitForPicture();
        QCOMPARE(VLCComponent::channelCount, 2);
        // The cameras mirrored in the last recording start this one as recorded.
        QTRY_COMPARE_WITH_TIMEOUT(mainSide(), 1, 3000);
        QTRY_COMPARE_WITH_TIMEOUT(frameNumberSide(m_rear1, false), 1, 3000);
        QVERIFY(!m_rear1->findChild<QPushButton*>("bFlip")->isChecked());
        m_window->player()->onPause(); // the four-second recording stays the playing row
    }

    void deletingThePlayingRowStopsIt() {
        const int rows = RecordingList::records.size();
        m_list->onDeleteCurrentFile();
        QTRY_COMPARE_WITH_TIMEOUT(VLCComponent::playerState, int(VLCComponent::Stopped), 10000);
        QVERIFY(PlayerInterface::playStatus != PlayerInterface::PlayRunning);
        // The panel is cleared.
        QCOMPARE(m_window->findChild<QLabel*>("playTime")->text(), QString("00:00"));
        QCOMPARE(m_window->findChild<TavPlaySlider*>("playBar")->maximum(), 0);
        QCOMPARE(RecordingList::records.size(), rows - 1);
        for (const auto& record : RecordingList::records)
            QVERIFY(!record.fileName.contains("091000_EVT"));
        QVERIFY(QFile::exists(kMedia + "/20240301_091000_EVT_1.mp4")); // only off the list
        QVERIFY(QFile::exists(kMedia + "/20240301_091000_EVT_3.mp4"));
    }

    void singleFileRecordingShowsEachCameraInItsScene() {
        // Tracks of one file, each in its own scene, chosen by a double click.
        m_list->onSortFile(15);
        int row = -1;
        for (int i = 0; i < RecordingList::records.size(); ++i) {
            if (RecordingList::records.at(i).filePath.endsWith("USR_4.mp4"))
                row = i;
        }
        QVERIFY(row >= 0);
        const QPoint cell = m_list->visualItemRect(m_list->item(row, 1)).center();
        QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, {}, cell);
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("USR_4.mp4") &&
                                     VLCComponent::playerState == VLCComponent::Playing,
                                 15000);
        waitForEachCameraInItsScene();
        // The picture stays in the scenes while it plays on: a second from the start.
        VLCComponent* engine = m_window->player()->engine();
        m_window->player()->onPlayPosMove(0);
        QTRY_VERIFY_WITH_TIMEOUT(engine->GetCurrentPos() < 500, 3000);
        QTRY_VERIFY_WITH_TIMEOUT(engine->GetCurrentPos() >= 1000, 5000);
        QVERIFY(isGreen(screenColour(m_rear1)));
        QVERIFY(isRed(screenColour(m_main)));

        // A mirrored rear track still shows its own track, in its own scene.
        m_window->player()->onPause();
        QTest::mouseClick(m_rear2->findChild<QPushButton*>("bFlip"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(frameNumberSide(m_rear2, false), -1, 5000);
        QVERIFY(isBlue(screenColour(m_rear2)));
        QVERIFY(isGreen(screenColour(m_rear1)));
        QCOMPARE(frameNumberSide(m_rear1, false), 1);
    }

    // The memory card opened while a recording plays: what played stops, the card's
    // recordings (a one-file recording among them) take the list's place and stay there.
    void cardOpenedWhilePlayingTakesTheListsPlace() {
        CardFixture fixture(m_dir.filePath("cards"));
        const QString root = fixture.addDrive("media/CARD", true, "CARD");
        fixture.install();
        const QString model = "RAVEN1_2CH";
        QVERIFY(CardFixture::writeFile(
            ConfigAccess::configPath(root),
            CardFixture::configBin(
                model,
                CardFixture::blocks(
                    CardFixture::layout(CardFixture::shippedJson("configStr.json"), model), {}))));
        QVERIFY(QDir().mkpath(root + "/Normal"));
        for (const char* name : {"20240301_090000_INF_1.mp4", "20240301_090000_INF_2.mp4",
                                 "20240301_090000_INF_3.mp4", "20240301_092000_USR_4.mp4"})
            QVERIFY(QFile::copy(kMedia + '/' + name, root + "/Normal/" + name));
        m_window->player()->onPlay();
        QCOMPARE(PlayerInterface::playStatus, int(PlayerInterface::PlayRunning));

        whenModal<SDCardView>([root](SDCardView* view) {
            for (int row = 0; row < view->table()->rowCount(); ++row) {
                if (view->table()->item(row, SDCardView::DriveColumn)->text() == root) {
                    view->table()->setCurrentCell(row, 0);
                    view->onClicked_Item();
                }
            }
            view->onClicked_bOpenFolder();
        });
        QTest::mouseClick(m_window->findChild<QPushButton*>("bMemory"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(VLCComponent::playerState, int(VLCComponent::Stopped), 10000);
        QVERIFY(PlayerInterface::playStatus != PlayerInterface::PlayRunning);
        QTRY_VERIFY(m_window->findChild<QWidget*>("WaitPlayLogo")->isVisible());
        QCOMPARE(m_window->findChild<TopBar*>()->fileName(), QString());
        QTRY_COMPARE(RecordingList::records.size(), 2);
        // Still listed once the player's checks (every 500 ms) have had their turn.
        QTest::qWait(1200);
        QCOMPARE(RecordingList::records.size(), 2);
        QVERIFY(
            RecordingList::records.at(1).filePath.endsWith("/Normal/20240301_092000_USR_4.mp4"));
        QCOMPARE(VLCComponent::playerState, int(VLCComponent::Stopped));
        // And they play from the card.
        const QPoint cell = m_list->visualItemRect(m_list->item(0, 1)).center();
        QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, {}, cell);
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.startsWith(root) &&
                                     VLCComponent::playerState == VLCComponent::Playing,
                                 15000);
        waitForEachCameraInItsScene();
    }
};

TAVORIC_WEB_TEST_MAIN(TestPlaythrough)
#include "test_playthrough.moc"
