// Drives on the real main window with real libvlc: the Drives tab, a drive played from
// recording to recording, and a seek across recordings, checked on the screen.
#include "AppGlobals.h"
#include "DriveList.h"
#include "DriveListView.h"
#include "DrivePlayback.h"
#include "MainWindow.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "SubPlayerWindow.h"
#include "TavFileListItem.h"
#include "TavPlaySlider.h"
#include "VLCComponent.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include "WebTestMain.h"

namespace {

const QString kDrive = QStringLiteral(PLAYBACK_MEDIA "/drive");

// The colour on screen a little below the middle of a scene (clear of its frame number).
QColor screenColour(QWidget* widget) {
    const QPoint at =
        widget->mapToGlobal(widget->rect().center() + QPoint(0, widget->height() / 4));
    return QColor(QGuiApplication::primaryScreen()->grabWindow(0).toImage().pixel(at));
}

bool near(const QColor& seen, const QColor& wanted) {
    return std::abs(seen.red() - wanted.red()) < 70 &&
           std::abs(seen.green() - wanted.green()) < 70 &&
           std::abs(seen.blue() - wanted.blue()) < 70;
}

} // namespace

class TestDrivesPlay : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    MainWindow* m_window = nullptr;
    DriveListView* m_drives = nullptr;
    QWidget* m_scenes[3] = {nullptr, nullptr, nullptr};

    // Every camera of the recording in its scene, in that recording's colours.
    void waitForColours(const char* front, const char* rear1, const char* rear2) {
        const QColor wanted[3] = {QColor(front), QColor(rear1), QColor(rear2)};
        for (int i = 0; i < 3; ++i)
            QTRY_VERIFY2_WITH_TIMEOUT(near(screenColour(m_scenes[i]), wanted[i]),
                                      qPrintable(QString("scene %1 shows %2, not %3")
                                                     .arg(i)
                                                     .arg(screenColour(m_scenes[i]).name())
                                                     .arg(wanted[i].name())),
                                      8000);
    }

    void doubleClick(QTreeWidgetItem* item) {
        const QRect rect = m_drives->visualItemRect(item);
        // A click first, as a user's double click begins with one: the view takes the double
        // click on the item its press chose.
        QTest::mouseClick(m_drives->viewport(), Qt::LeftButton, {}, rect.center());
        QTest::mouseDClick(m_drives->viewport(), Qt::LeftButton, {}, rect.center());
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
        m_drives = m_window->findChild<DriveListView*>();
        m_scenes[0] = m_window->findChild<PlayScreenWindow*>();
        m_scenes[1] = m_window->findChild<SubPlayerWindow*>("subPlayerWindow1");
        m_scenes[2] = m_window->findChild<SubPlayerWindow*>("subPlayerWindow2");
        QVERIFY(m_drives && m_scenes[0] && m_scenes[1] && m_scenes[2]);
    }

    void cleanupTestCase() { delete m_window; }

    void theDrivesTabShowsTheDrives() {
        // Listed as a drop lists them, without playing the first.
        m_window->findChild<TavFileListItem*>()->loadPaths({kDrive});
        QTest::mouseClick(m_window->findChild<QPushButton*>("bDrives"), Qt::LeftButton);
        QTRY_VERIFY(m_drives->isVisible());
        QVERIFY(!m_window->findChild<TavFileListItem*>()->isVisible());
        // The drive of three playable recordings (the unreadable one among its rows), the
        // recording after the gap, the parking recording.
        // (Once the lengths are read: they place the recordings.)
        QTRY_COMPARE_WITH_TIMEOUT(m_drives->topLevelItemCount(), 3, 10000);
        QTRY_COMPARE_WITH_TIMEOUT(m_drives->topLevelItem(0)->childCount(), 4, 10000);
        QTreeWidgetItem* drive = m_drives->topLevelItem(0);
        QVERIFY(drive->text(DriveListView::NameColumn).startsWith("2024-03-01  09:30 - 09:30"));
        QVERIFY(drive->text(DriveListView::NameColumn).contains("Recordings: 3"));
        QCOMPARE(drive->text(DriveListView::LengthColumn), QString("00:16"));
        QCOMPARE(drive->child(2)->text(DriveListView::LengthColumn), QString("--:--"));
        QCOMPARE(m_drives->topLevelItem(1)->childCount(), 1);
        QVERIFY(
            m_drives->topLevelItem(2)->text(DriveListView::NameColumn).contains("Recordings: 1"));
        // No telemetry in these recordings: no incident, once they are read.
        QTRY_VERIFY_WITH_TIMEOUT(drive->text(DriveListView::NameColumn).contains("Incidents: 0"),
                                 10000);
    }

    void aDrivePlaysFromRecordingToRecording() {
        doubleClick(m_drives->topLevelItem(0));
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("093000_INF_1.mp4") &&
                                     PlayerInterface::playStatus == PlayerInterface::PlayRunning,
                                 15000);
        auto* slider = m_window->findChild<TavPlaySlider*>();
        QTRY_COMPARE(slider->maximum(), 16000);
        waitForColours("red", "lime", "blue");
        // On its own, at the end of the first recording, the second one plays, every camera
        // in its scene; the unreadable third is passed over for the fourth.
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("093004_INF_1.mp4"), 15000);
        waitForColours("yellow", "cyan", "magenta");
        QVERIFY(PlaybackState::shownTime() >= 4000);
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("093012_INF_1.mp4"), 15000);
        waitForColours("white", "orange", "purple");
        // The drive ends with its last recording: nothing after it plays.
        QTRY_VERIFY_WITH_TIMEOUT(!m_window->findChild<DrivePlayback*>()->isActive(), 15000);
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::playStatus != PlayerInterface::PlayRunning, 5000);
        QVERIFY(PlayerInterface::currentFile.endsWith("093012_INF_1.mp4"));
    }

    void aSeekLandsInTheRecordingThatHoldsTheMoment() {
        doubleClick(m_drives->topLevelItem(0));
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("093000_INF_1.mp4") &&
                                     VLCComponent::playerState == VLCComponent::Playing,
                                 15000);
        m_window->player()->onPause();
        auto* slider = m_window->findChild<TavPlaySlider*>();
        QTRY_COMPARE(slider->maximum(), 16000);
        // A click on the slider 13 s into the drive: 1 s into the fourth recording.
        QTest::mouseClick(slider, Qt::LeftButton, {},
                          QPoint(slider->positionOf(13000), slider->height() / 2));
        QTRY_VERIFY_WITH_TIMEOUT(PlayerInterface::currentFile.endsWith("093012_INF_1.mp4") &&
                                     PlayerInterface::playStatus == PlayerInterface::PlayRunning,
                                 15000);
        waitForColours("white", "orange", "purple");
        m_window->player()->onPause();
        // The slider's time is the drive's: the recording's own time plus where it starts.
        QCOMPARE(PlaybackState::driveOffsetMs, qint64(12000));
        QTRY_VERIFY_WITH_TIMEOUT(
            PlaybackState::shownTime() >= 12500 && PlaybackState::shownTime() <= 16000, 5000);
        QTRY_COMPARE(slider->value(), int(PlaybackState::shownTime()));
    }
};

TAVORIC_WEB_TEST_MAIN(TestDrivesPlay)
#include "test_drivesplay.moc"
