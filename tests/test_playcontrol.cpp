// The play control panel driven through its own widgets (what each asks for by play status), and
// zooming and panning the main scene and moving the rear scenes.
#include "AppGlobals.h"
#include "PlayControlView.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "SubSceneBackWidget.h"
#include "TavPlayButton.h"
#include "TavPlaySlider.h"
#include "TavVolumeProgressBar.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest>

namespace {

const QString kRecording = QStringLiteral("/cards/20240301_090000_INF_1.mp4");

void mouse(QWidget* widget, QEvent::Type type, const QPoint& at) {
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void wheel(QWidget* widget, const QPoint& at, int angle) {
    QWheelEvent event(QPointF(at), QPointF(widget->mapToGlobal(at)), QPoint(), QPoint(0, angle),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

// A point at a share of a widget's width, on its middle line.
QPoint at(QWidget* widget, double share) {
    return QPoint(int(share * (widget->width() - 1)), widget->height() / 2);
}

// The first argument of every emission a spy saw.
template <typename T> QList<T> firstArguments(const QSignalSpy& spy) {
    QList<T> values;
    for (const QList<QVariant>& arguments : spy)
        values << arguments.at(0).value<T>();
    return values;
}

void setStatus(int status) {
    PlayerInterface::playStatus = status;
}

} // namespace

class TestPlayControl : public QObject {
    Q_OBJECT

    QTemporaryDir m_data;
    PlayControlView* m_panel = nullptr;

    template <typename T = QPushButton> T* child(const char* name) const {
        T* found = m_panel->findChild<T*>(QLatin1String(name));
        if (found == nullptr)
            qWarning("no child %s", name);
        return found;
    }
    QString text(const char* label) const { return child<QLabel>(label)->text(); }
    void click(const char* button) { QTest::mouseClick(child(button), Qt::LeftButton); }
    TavPlayButton* play() const { return child<TavPlayButton>("bPlay"); }
    TavPlaySlider* slider() const { return child<TavPlaySlider>("playBar"); }
    TavVolumeProgressBar* volume() const { return child<TavVolumeProgressBar>("bVolumeBar"); }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_data.path();
        AppGlobals::volume = 40;
        AppGlobals::mute = false;
        m_panel = new PlayControlView;
        m_panel->resize(m_panel->designSize());
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panel));
    }

    void cleanupTestCase() { delete m_panel; }

    void init() {
        setStatus(PlayerInterface::PlayIdle);
        PlayerInterface::currentFile.clear();
        PlayerInterface::currentTime = 0;
        PlayerInterface::totalTime = 0;
        m_panel->onBlockEvent(false);
        m_panel->onClearUi();
    }

    void builtFromItsDescription() {
        // The volume saved at the last exit, also for the coordinator's next start.
        QCOMPARE(volume()->value(), 40);
        QCOMPARE(PlayerInterface::volume, 40);

        // Wider: the slider stretches, the right buttons stay at the edge, play in the middle.
        m_panel->resize(1290, 96);
        QCOMPARE(slider()->width(), 830 + 300);
        QCOMPARE(child("bDelete")->geometry().right(), 1290 - 13);
        const int middle = play()->mapTo(m_panel, play()->rect().center()).x();
        QVERIFY2(qAbs(middle - 645) < 8, qPrintable(QString::number(middle)));
        m_panel->resize(m_panel->designSize());
    }

    void timeTextsDropTheHours() {
        PlayerInterface::totalTime = 3725000; // 1:02:05
        m_panel->onloadTotalTime();
        QCOMPARE(text("totalTime"), QString("02:05"));
        QCOMPARE(slider()->maximum(), 3725000);

        PlayerInterface::currentTime = 247999;
        m_panel->onUpdateSlider();
        QCOMPARE(text("playTime"), QString("04:07"));
        QCOMPARE(slider()->value(), 247999);

        // A time past the end is shown but leaves the slider where it was.
        PlayerInterface::currentTime = 3726000;
        m_panel->onUpdateSlider();
        QCOMPARE(text("playTime"), QString("02:06"));
        QCOMPARE(slider()->value(), 247999);

        // A total that arrives after the start is taken up by the next tick.
        PlayerInterface::totalTime = 59999;
        PlayerInterface::currentTime = 1500;
        m_panel->onUpdateSlider();
        QCOMPARE(text("totalTime"), QString("00:59"));
        QCOMPARE(slider()->maximum(), 59999);

        // Cleared (the time and the bar as well: test_playthrough).
        emit m_panel->onSendClear();
        QCOMPARE(text("totalTime"), QString("00:00"));
    }

    void playButtonAsksByStatus() {
        QSignalSpy playSpy(m_panel, &PlayControlView::onSendPlay);
        QSignalSpy pauseSpy(m_panel, &PlayControlView::onClickedPause);

        setStatus(PlayerInterface::PlayStopped);
        PlayerInterface::currentFile = kRecording;
        click("bPlay");
        setStatus(PlayerInterface::PlayIdle); // and nothing chosen yet
        PlayerInterface::currentFile.clear();
        click("bPlay");
        QCOMPARE(playSpy.count() + pauseSpy.count(), 0);
        QVERIFY(!play()->isPlaying());

        PlayerInterface::currentFile = kRecording;
        click("bPlay");
        QCOMPARE(playSpy.count(), 1);
        QVERIFY(play()->isPlaying());

        setStatus(PlayerInterface::PlayRunning);
        click("bPlay");
        QCOMPARE(pauseSpy.count(), 1);
        QVERIFY(!play()->isPlaying());

        // Playing on from a pause in frame steps goes back to five-second steps.
        setStatus(PlayerInterface::PlayPaused);
        click("bUnit");
        click("bPlay");
        QCOMPARE(playSpy.count(), 2);
        QCOMPARE(pauseSpy.count(), 1);
        QCOMPARE(child("bUnit")->text(), QString("Sec"));

        // The pause the main window and the file list ask for: only of a playing recording.
        m_panel->onSetPause();
        QCOMPARE(pauseSpy.count(), 1);
        setStatus(PlayerInterface::PlayRunning);
        m_panel->onSetPause();
        QCOMPARE(pauseSpy.count(), 2);
        QVERIFY(!play()->isPlaying());
    }

    void unitSwitchPausesAndStepsFollowIt() {
        QSignalSpy pauseSpy(m_panel, &PlayControlView::onClickedPause);
        QSignalSpy seconds(m_panel, &PlayControlView::onClicked5sMove);
        QSignalSpy frames(m_panel, &PlayControlView::onClickMoveFrame);

        setStatus(PlayerInterface::PlayRunning);
        click("rewind");
        click("fastForward");
        QCOMPARE(firstArguments<bool>(seconds), QList<bool>({false, true}));

        play()->setPlaying(true);
        click("bUnit");
        QCOMPARE(pauseSpy.count(), 1);
        QVERIFY(!play()->isPlaying());
        QCOMPARE(child("bUnit")->text(), QString("Frm"));

        setStatus(PlayerInterface::PlayPaused);
        click("fastForward");
        click("rewind");
        QCOMPARE(firstArguments<bool>(frames), QList<bool>({true, false}));
        QCOMPARE(seconds.count(), 2);

        // Back to seconds; paused already, so no second pause.
        click("bUnit");
        QCOMPARE(pauseSpy.count(), 1);
        QCOMPARE(child("bUnit")->text(), QString("Sec"));
    }

    // Stopped or idle, the buttons that act on a recording ask for nothing.
    void nothingToActOnWithoutARecording() {
        QSignalSpy flip(m_panel, &PlayControlView::onClickedFlip);
        QSignalSpy capture(m_panel, &PlayControlView::onSendRefreshImage);
        QSignalSpy steps(m_panel, &PlayControlView::onClicked5sMove);
        QSignalSpy speed(m_panel, &PlayControlView::onSendChangeSpeed);
        QSignalSpy position(m_panel, &PlayControlView::onChangePlayPosition);
        PlayerInterface::totalTime = 10000;
        m_panel->onloadTotalTime();
        for (int status : {int(PlayerInterface::PlayStopped), int(PlayerInterface::PlayIdle)}) {
            setStatus(status);
            for (const char* button :
                 {"bFlip", "bCapture", "rewind", "fastForward", "bDoubleSpeed"})
                click(button);
            mouse(slider(), QEvent::MouseButtonPress, at(slider(), 0.5));
            mouse(slider(), QEvent::MouseButtonRelease, at(slider(), 0.5));
        }
        QCOMPARE(flip.count() + capture.count() + steps.count() + speed.count() + position.count(),
                 0);
        QCOMPARE(slider()->value(), 0);
    }

    // Capture, and the flip of the front camera: test_playthrough on the real window.
    void flipOfTheMainScenesCamera() {
        QSignalSpy flip(m_panel, &PlayControlView::onClickedFlip);
        setStatus(PlayerInterface::PlayPaused);
        click("bFlip");
        m_panel->setFlipChannel(2);
        click("bFlip");
        m_panel->setFlipChannel(0);
        QCOMPARE(firstArguments<int>(flip), QList<int>({0, 2}));
    }

    void speedButtons() {
        QSignalSpy speed(m_panel, &PlayControlView::onSendChangeSpeed);
        QVERIFY(!child("bDefaultSpeed")->isEnabled());
        setStatus(PlayerInterface::PlayRunning);
        click("bDefHalfSpeed");
        QCOMPARE(firstArguments<int>(speed), QList<int>({3}));
        QVERIFY(!child("bDefHalfSpeed")->isEnabled());
        for (const char* other : {"bHalfSpeed", "bDefaultSpeed", "bDoubleSpeed"})
            QVERIFY2(child(other)->isEnabled(), other);

        // The speed in force, or no speed at all, asks nothing.
        m_panel->onChangedSpeed(3);
        m_panel->onChangedSpeed(0);
        m_panel->onChangedSpeed(5);
        QCOMPARE(speed.count(), 1);

        click("bHalfSpeed");
        QCOMPARE(firstArguments<int>(speed), QList<int>({3, 1}));

        // A new recording starts at normal speed.
        m_panel->onSetPlayData();
        QCOMPARE(m_panel->speedIndex(), 2);
        QVERIFY(!child("bDefaultSpeed")->isEnabled() && child("bHalfSpeed")->isEnabled());
    }

    void muteAndVolume() {
        QSignalSpy mute(m_panel, &PlayControlView::onClickedMute);
        QSignalSpy level(m_panel, &PlayControlView::onSendVolumeChange);

        click("bSound");
        QCOMPARE(mute.last().at(0).toBool(), true);
        QVERIFY(child("bSound")->isChecked() && AppGlobals::mute);
        QCOMPARE(volume()->value(), 0);
        m_panel->onSetPlayData(); // a new recording keeps the sound off
        QCOMPARE(volume()->value(), 0);
        click("bSound");
        QCOMPARE(mute.last().at(0).toBool(), false);
        QCOMPARE(volume()->value(), 40);

        // Ends of the bar are 0 and 100; a click sets the volume where it lands.
        QCOMPARE(volume()->volumeAt(-20), 0);
        QCOMPARE(volume()->volumeAt(volume()->width()), 100);
        mouse(volume(), QEvent::MouseButtonPress, at(volume(), 0.75));
        mouse(volume(), QEvent::MouseButtonRelease, at(volume(), 0.75));
        QVERIFY(qAbs(level.last().at(0).toInt() - 75) <= 1);
        QCOMPARE(AppGlobals::volume, level.last().at(0).toInt());

        // A drag follows the mouse; picking a volume while muted turns the sound on.
        click("bSound");
        mute.clear();
        mouse(volume(), QEvent::MouseButtonPress, at(volume(), 0.5));
        mouse(volume(), QEvent::MouseMove, at(volume(), 0.2));
        mouse(volume(), QEvent::MouseButtonRelease, at(volume(), 0.2));
        QCOMPARE(mute.count(), 1);
        QVERIFY(!m_panel->isMuted() && !AppGlobals::mute);
        QVERIFY(qAbs(level.last().at(0).toInt() - 20) <= 1);
        QCOMPARE(volume()->value(), level.last().at(0).toInt());

        // Keys stop at the top without asking again.
        level.clear();
        m_panel->onStepVolume(+100);
        m_panel->onStepVolume(+5);
        QCOMPARE(level.count(), 1);
        QCOMPARE(level.last().at(0).toInt(), 100);

        // The stored values put back, as after the settings are read.
        AppGlobals::volume = 60;
        AppGlobals::mute = true;
        m_panel->onRefreshVolume();
        QCOMPARE(level.last().at(0).toInt(), 60);
        QCOMPARE(mute.last().at(0).toBool(), true);
        QCOMPARE(volume()->value(), 0);
        AppGlobals::mute = false;
        m_panel->onRefreshVolume();
        QCOMPARE(volume()->value(), 60);
    }

    void sliderSeeksOnReleaseWhilePlayingOrPaused() {
        QSignalSpy position(m_panel, &PlayControlView::onChangePlayPosition);
        QSignalSpy stopTimer(m_panel, &PlayControlView::onSendStopTimer);
        PlayerInterface::totalTime = 10000;
        m_panel->onloadTotalTime();
        QCOMPARE(slider()->valueAt(at(slider(), 0.0)), 0);
        QCOMPARE(slider()->valueAt(at(slider(), 1.0)), 10000);
        for (int status : {int(PlayerInterface::PlayPaused), int(PlayerInterface::PlayRunning)}) {
            setStatus(status);
            position.clear();
            mouse(slider(), QEvent::MouseButtonPress, at(slider(), 0.5));
            QVERIFY(qAbs(slider()->value() - 5000) < 200);
            QCOMPARE(text("playTime"),
                     slider()->value() < 5000 ? QString("00:04") : QString("00:05"));
            // The player's ticks do not pull the handle from under the mouse.
            PlayerInterface::currentTime = 1000;
            m_panel->onUpdateSlider();
            QVERIFY(qAbs(slider()->value() - 5000) < 200);
            mouse(slider(), QEvent::MouseMove, at(slider(), 0.82));
            QCOMPARE(text("playTime"), QString("00:08"));
            QCOMPARE(position.count(), 0);
            mouse(slider(), QEvent::MouseButtonRelease, at(slider(), 0.82));
            QCOMPARE(position.count(), 1);
            QVERIFY(qAbs(position.last().at(0).toInt() - 8200) < 200);
        }
        QCOMPARE(stopTimer.count(), 2);

        // Playback ending during a drag: the release asks for nothing.
        position.clear();
        mouse(slider(), QEvent::MouseButtonPress, at(slider(), 0.3));
        setStatus(PlayerInterface::PlayIdle);
        mouse(slider(), QEvent::MouseButtonRelease, at(slider(), 0.3));
        QCOMPARE(position.count(), 0);
    }

    void fileButtonsAndRoutes() {
        QSignalSpy file(m_panel, &PlayControlView::onChangePlayFile);
        QSignalSpy next(m_panel, &PlayControlView::onCallNextFile);
        QSignalSpy stop(m_panel, &PlayControlView::onClickedStop);
        click("previous");
        click("forward");
        m_panel->onRecvPlayBackFile(); // the coordinator's step back past the start
        m_panel->onRecvPlayNextFile(); // and its end of file
        QCOMPARE(firstArguments<int>(file), QList<int>({0, 1, 0}));
        QCOMPARE(next.count(), 1);
        click("bStop");
        QCOMPARE(firstArguments<bool>(stop), QList<bool>({true}));
    }

    void blockedPanelTakesNoInput() {
        QSignalSpy pauseSpy(m_panel, &PlayControlView::onClickedPause);
        QSignalSpy level(m_panel, &PlayControlView::onSendVolumeChange);
        QSignalSpy position(m_panel, &PlayControlView::onChangePlayPosition);
        QSignalSpy file(m_panel, &PlayControlView::onChangePlayFile);
        setStatus(PlayerInterface::PlayRunning);
        PlayerInterface::totalTime = 10000;
        m_panel->onloadTotalTime();
        play()->setPlaying(true);
        const bool muted = m_panel->isMuted();

        m_panel->onBlockEvent(true);
        click("bPlay");
        click("forward");
        click("bSound");
        m_panel->onClick_bPlay(); // the main window's keys
        m_panel->onClick_bUnit();
        m_panel->onStepVolume(10);
        mouse(volume(), QEvent::MouseButtonPress, at(volume(), 0.9));
        mouse(slider(), QEvent::MouseButtonPress, at(slider(), 0.9));
        mouse(slider(), QEvent::MouseButtonRelease, at(slider(), 0.9));
        QCOMPARE(pauseSpy.count() + level.count() + position.count() + file.count(), 0);
        QVERIFY(play()->isPlaying());
        QCOMPARE(m_panel->isMuted(), muted);
        QVERIFY(m_panel->unitIsSeconds());

        m_panel->onBlockEvent(false);
        click("bPlay");
        QCOMPARE(pauseSpy.count(), 1);
    }

    // ---- Scenes ----

    void wheelZoomKeepsThePointUnderTheCursor() {
        PlayScreenWindow window;
        window.resize(400, 300);
        window.onSetId(0);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy resized(&window, &PlayScreenWindow::sendVideoResize);
        QWidget* scene = window.scene();
        QCOMPARE(scene->geometry(), QRect(0, 0, 400, 300));

        // Nothing before the first tick of playback allows zooming.
        wheel(&window, {100, 50}, 120);
        QCOMPARE(window.zoomLevel(), 3);
        window.onSetZoom();

        const QPoint at(100, 50);
        wheel(&window, at, 120);
        QCOMPARE(window.zoomLevel(), 4);
        QCOMPARE(scene->geometry(), QRect(-100, -50, 800, 600));
        // The picture point under the cursor stays there.
        QCOMPARE(scene->mapFromParent(at) / 2, at);
        QCOMPARE(resized.last().at(1).toSize(), QSize(800, 600));

        wheel(&window, at, 120);
        wheel(&window, at, 120); // stops at four times
        QCOMPARE(window.zoomLevel(), 5);
        QCOMPARE(scene->geometry(), QRect(-300, -150, 1600, 1200));
        QCOMPARE(scene->mapFromParent(at) / 4, at);

        // Panning while zoomed follows the mouse and never uncovers the window.
        mouse(&window, QEvent::MouseButtonPress, {200, 150});
        mouse(&window, QEvent::MouseMove, {150, 120});
        QCOMPARE(scene->pos(), QPoint(-350, -180));
        mouse(&window, QEvent::MouseMove, {2000, 2000});
        QCOMPARE(scene->pos(), QPoint(0, 0));
        mouse(&window, QEvent::MouseButtonRelease, {2000, 2000});

        wheel(&window, at, -120);
        wheel(&window, at, -120);
        wheel(&window, at, -120);
        QCOMPARE(window.zoomLevel(), 3);
        QCOMPARE(scene->geometry(), QRect(0, 0, 400, 300));

        // Not zoomed: a press does not drag the picture.
        mouse(&window, QEvent::MouseButtonPress, {200, 150});
        mouse(&window, QEvent::MouseMove, {150, 120});
        mouse(&window, QEvent::MouseButtonRelease, {150, 120});
        QCOMPARE(scene->pos(), QPoint(0, 0));

        // A reset ends zooming until playback allows it again.
        window.onSetZoom();
        wheel(&window, at, 120);
        window.onResetZoom();
        QCOMPARE(window.zoomLevel(), 3);
        QCOMPARE(scene->geometry(), QRect(0, 0, 400, 300));
        wheel(&window, at, 120);
        QCOMPARE(window.zoomLevel(), 3);
    }

    void rearBackingMovesAndReturnsHome() {
        QWidget parent;
        parent.resize(800, 600);
        auto* back = new SubSceneBackWidget(&parent);
        back->setGeometry(500, 300, 200, 200);
        back->setHomePosition({500, 300});
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QSignalSpy block(back, &SubSceneBackWidget::onSendBlockKeyboardEvent);
        mouse(back, QEvent::MouseButtonPress, {10, 10});
        QCOMPARE(block.last().at(0).toBool(), true);
        mouse(back, QEvent::MouseMove, {-90, -40});
        QCOMPARE(back->pos(), QPoint(400, 250));
        mouse(back, QEvent::MouseMove, {-900, -900}); // stays inside the window
        QCOMPARE(back->pos(), QPoint(0, 0));
        mouse(back, QEvent::MouseButtonRelease, {0, 0});
        QCOMPARE(block.last().at(0).toBool(), false);
        back->ClearPosition();
        QCOMPARE(back->pos(), QPoint(500, 300));
    }
};

QTEST_MAIN(TestPlayControl)
#include "test_playcontrol.moc"
