// Zooming and panning the main scene, and the rear scenes' backing.
#include "AppGlobals.h"
#include "PlayScreenWindow.h"
#include "SubSceneBackWidget.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest>

class TestScenes : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    static void wheel(QWidget* widget, const QPoint& at, int angle) {
        QWheelEvent event(QPointF(at), QPointF(widget->mapToGlobal(at)), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    }
    static void mouse(QWidget* widget, QEvent::Type type, const QPoint& at) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }

private slots:
    void initTestCase() { AppGlobals::dataFolder = m_dir.path(); }

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
        // The picture point under the cursor has not moved: (100, 50) in the window shows
        // scene point (200, 100), which is (100, 50) of the unzoomed picture.
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

QTEST_MAIN(TestScenes)
#include "test_scenes.moc"
