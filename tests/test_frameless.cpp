// Moving and resizing the borderless main window with the mouse.
#include "Frameless.h"

#include <QMouseEvent>
#include <QtTest>

class TestFrameless : public QObject {
    Q_OBJECT

    static void mouse(QWidget* window, QEvent::Type type, const QPoint& local,
                      const QPoint& global) {
        const Qt::MouseButtons buttons =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, local, global, Qt::LeftButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(window, &event);
    }
    // Presses at a point of the window, drags by delta, releases.
    static void drag(QWidget* window, const QPoint& local, const QPoint& delta) {
        const QPoint global = window->geometry().topLeft() + local;
        mouse(window, QEvent::MouseButtonPress, local, global);
        mouse(window, QEvent::MouseMove, local + delta, global + delta);
        mouse(window, QEvent::MouseButtonRelease, local + delta, global + delta);
    }

private slots:
    void edgeZonesAreSevenPixelsWide() {
        const QSize size(400, 300);
        QCOMPARE(Frameless::edgesAt({0, 0}, size), Frameless::Left | Frameless::Top);
        QCOMPARE(Frameless::edgesAt({6, 150}, size), int(Frameless::Left));
        QCOMPARE(Frameless::edgesAt({7, 150}, size), int(Frameless::None));
        QCOMPARE(Frameless::edgesAt({393, 150}, size), int(Frameless::Right));
        QCOMPARE(Frameless::edgesAt({392, 150}, size), int(Frameless::None));
        QCOMPARE(Frameless::edgesAt({399, 299}, size), Frameless::Right | Frameless::Bottom);
        QCOMPARE(Frameless::edgesAt({200, 296}, size), int(Frameless::Bottom));
    }

    void windowFlagsAndResizeByDrag() {
        QWidget window;
        window.setMinimumSize(300, 200);
        Frameless frameless(&window);
        QCOMPARE(int(window.windowFlags()), 0xC801);
        QVERIFY(window.testAttribute(Qt::WA_Hover));
        QVERIFY(window.hasMouseTracking());
        window.setGeometry(100, 100, 400, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        // Bottom-right corner outwards.
        drag(&window, {398, 298}, {50, 30});
        QCOMPARE(window.size(), QSize(450, 330));
        const QPoint topLeft = window.geometry().topLeft();

        // The left edge far to the right stops at the minimum width, right edge fixed.
        const int right = window.geometry().right();
        drag(&window, {2, 150}, {400, 0});
        QCOMPARE(window.width(), 300);
        QCOMPARE(window.geometry().right(), right);

        // A drag inside the window moves it without resizing.
        window.setGeometry(QRect(topLeft, QSize(450, 330)));
        drag(&window, {200, 150}, {-40, 25});
        QCOMPARE(window.geometry().topLeft(), topLeft + QPoint(-40, 25));
        QCOMPARE(window.size(), QSize(450, 330));
    }
};

QTEST_MAIN(TestFrameless)
#include "test_frameless.moc"
