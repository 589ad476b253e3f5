// A folder of other cameras' recordings listed, and played on real libvlc with their telemetry.
#include "AppGlobals.h"
#include "CameraCountDelegate.h"
#include "PlayerInterface.h"
#include "TavFileListItem.h"
#include "TavPrompt.h"
#include "VLCComponent.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

namespace {

const QString kCameras = QStringLiteral(FOREIGN_MEDIA) + "/cameras/";

} // namespace

class TestForeignRecordings : public QObject {
    Q_OBJECT

    QTemporaryDir m_data;
    QWidget* m_window = nullptr;
    PlayerInterface* m_player = nullptr;
    QStringList m_messages;

    void play(const QString& path) {
        QSignalSpy started(m_player, &PlayerInterface::onSendSetPlayButton);
        PlayerInterface::currentFile = path;
        m_player->checkFileReady();
        QVERIFY(started.wait(15000));
        QCOMPARE(VLCComponent::playerState, int(VLCComponent::Playing));
    }

    void stop() {
        m_player->onClickStop(false);
        QTRY_COMPARE_WITH_TIMEOUT(VLCComponent::playerState, int(VLCComponent::Stopped), 10000);
        QTest::qWait(50);
    }

    // The frames with a position, and whether every frame has its G-sensor values.
    static int positions() {
        int count = 0;
        for (const GpsPoint& point : PlayerInterface::gpsList)
            count += point.latitude != 0 || point.longitude != 0;
        return count;
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_data.path();
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
        m_window = new QWidget;
        m_window->resize(700, 200);
        QWidget* video[3];
        for (int i = 0; i < 3; ++i) {
            auto* scene = new QWidget(m_window);
            scene->setGeometry(i * 230, 0, 220, 124);
            video[i] = new QWidget(scene);
            video[i]->setGeometry(0, 0, 220, 124);
            video[i]->setAttribute(Qt::WA_NativeWindow);
        }
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        m_player = new PlayerInterface(m_window);
        m_player->setMainScreen(video[0]);
        m_player->setSub1Screen(video[1]);
        m_player->setSub2Screen(video[2]);
    }

    void cleanupTestCase() { delete m_window; }

    void folderListsByDateTypeAndCameras() {
        TavFileListItem list;
        connect(&list, &TavFileListItem::onSendFinishReadFileTime, &list,
                &TavFileListItem::onFinishReadFileTime);
        QSignalSpy lengths(&list, &TavFileListItem::onSendFinishReadFileTime);
        list.loadPaths(
            {kCameras + "Normal", kCameras + "Event", kCameras + "Parking", kCameras + "Action"});
        QVERIFY(m_messages.isEmpty());
        QVERIFY(lengths.wait(30000));
        QStringList names, types, durations;
        QList<int> cameras;
        for (int row = 0; row < list.rowCount(); ++row) {
            names << list.item(row, TavFileListItem::NameColumn)->text();
            types << list.item(row, TavFileListItem::TypeColumn)->text();
            cameras << list.item(row, TavFileListItem::NameColumn)
                           ->data(CameraCountDelegate::kCameraCountRole)
                           .toInt();
            durations << list.item(row, TavFileListItem::LengthColumn)->text();
        }
        QCOMPARE(names,
                 QStringList({"20240612_081502_INF", "20240612_081514_INF", "20240612_081526_INF",
                              "20240612_081538_INF", "20240612_081550_INF", "20240612_081602_INF",
                              "20240612_081614_EVT", "20240612_081626_USR", "20240612_081638_USR",
                              "20240612_123000_PRK"}));
        QCOMPARE(types, QStringList({"I", "I", "I", "I", "I", "I", "E", "U", "U", "P"}));
        QCOMPARE(cameras, QList<int>({2, 2, 3, 2, 1, 1, 2, 1, 1, 1}));
        QCOMPARE(durations.count("00:12"), 9);
        QCOMPARE(durations.last(), QString("00:08"));
        // The type filter treats them as the camera's own: Event only.
        list.onSortFile(2);
        QCOMPARE(TavFileListItem::visibleRows, QVector<int>({6}));
    }

    // A copied card: the type folders' recordings are listed, another folder's are not.
    void parentOfTypeFoldersListsTheirRecordings() {
        TavFileListItem list;
        list.loadPaths({kCameras});
        QVERIFY2(m_messages.isEmpty(), qPrintable(m_messages.join('|')));
        QStringList names;
        for (int row = 0; row < list.rowCount(); ++row)
            names << list.item(row, TavFileListItem::NameColumn)->text();
        QCOMPARE(names,
                 QStringList({"20240612_081502_INF", "20240612_081514_INF", "20240612_081526_INF",
                              "20240612_081538_INF", "20240612_081550_INF", "20240612_081602_INF",
                              "20240612_081614_EVT", "20240612_123000_PRK"}));
    }

    // Three lettered cameras play together, with NMEA sentences from freeGPS blocks.
    void channelFilesPlayTogetherWithTelemetry() {
        play(kCameras + "Normal/REC_2024_06_12_08_15_26_F.MP4");
        QCOMPARE(m_player->engine()->GetChannelCount(), 3);
        QCOMPARE(PlayerInterface::playChannelCount, 3);
        QVERIFY(PlayerInterface::telemetryPresent);
        QCOMPARE(PlayerInterface::gpsList.size(), 120); // 12 s, a frame each 100 ms
        QCOMPARE(PlayerInterface::gSensorList.size(), 120);
        QVERIFY2(positions() >= 110, qPrintable(QString::number(positions())));
        stop();

        // Digits for channels, an NMEA log in a top-level box.
        play(kCameras + "Normal/20240612_081538_1.mp4");
        QCOMPARE(m_player->engine()->GetChannelCount(), 2);
        QVERIFY(positions() > 0);
        stop();
    }

    // A numbered action-camera file: one camera, GPMF positions and accelerations.
    void actionCameraPlaysWithItsTrace() {
        play(kCameras + "Action/GH010123.MP4");
        QCOMPARE(m_player->engine()->GetChannelCount(), 1);
        QCOMPARE(PlayerInterface::gpsList.size(), 120);
        QVERIFY(positions() >= 110);
        bool moving = false;
        for (const GSensorPoint& point : PlayerInterface::gSensorList)
            moving = moving || std::fabs(point.z - 1.0f) > 0.001f;
        QVERIFY(moving);
        for (const GpsPoint& point : PlayerInterface::gpsList)
            QVERIFY(point.speed >= 0 && point.speed < 100);
        stop();
    }
};

QTEST_MAIN(TestForeignRecordings)
#include "test_foreignrecordings.moc"
