// The main window as a user meets it: its panels, window-state buttons and keys, resizing by
// its borderless edges, and a language switch.
#include "AboutView.h"
#include "AppGlobals.h"
#include "ChartView.h"
#include "Frameless.h"
#include "LanguageView.h"
#include "MainWindow.h"
#include "MapView.h"
#include "TavShortcutTable.h"
#include "TopBar.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include "WebTestMain.h"

class TestMainWindow : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    MainWindow* m_window = nullptr;

    template <typename T> T* child(const char* name) const {
        T* found = m_window->findChild<T*>(QLatin1String(name));
        if (found == nullptr)
            qWarning("no child %s", name);
        return found;
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
    }

    void cleanupTestCase() {
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

        // Back to English for the other tests.
        AppGlobals::languageIndex = 0;
        AppGlobals::installTranslation(0);
        emit m_window->onSendChangeLanguage();
        QCOMPARE(child<QPushButton>("bFilelist")->text(), QString("Recordings"));
    }
};

TAVORIC_WEB_TEST_MAIN(TestMainWindow)
#include "test_mainwindow.moc"
