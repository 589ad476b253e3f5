// Card detection from drive tables made here, the card dialog's listing, opening and messages,
// and the watch that notices a card going.
#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFixture.h"
#include "CardSession.h"
#include "CheckSDThread.h"
#include "ConfigAccess.h"
#include "SDCardView.h"
#include "TavPrompt.h"

#include <QDir>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString touch(const QString& path) {
    CardFixture::writeFile(path, QByteArray());
    return path;
}

} // namespace

class TestSDCard : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QStringList m_messages;
    QString m_raven; // a removable card with a configuration and recordings
    QString m_osprey;
    QString m_bare;  // removable, no configuration
    QString m_fixed; // a fixed disk with a configuration

    QByteArray config(const QString& model) {
        return CardFixture::configBin(
            model, CardFixture::blocks(
                       CardFixture::layout(CardFixture::shippedJson("configStr.json"), model), {}));
    }

    void selectRow(SDCardView& view, const QString& root) {
        for (int row = 0; row < view.table()->rowCount(); ++row) {
            if (view.table()->item(row, SDCardView::DriveColumn)->text() == root) {
                view.table()->setCurrentCell(row, 0);
                view.onClicked_Item();
            }
        }
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.filePath("data");
        CardFixture fixture(m_dir.path());
        m_raven = fixture.addDrive("media/RAVEN CARD", true, "RAVEN CARD");
        m_fixed = fixture.addDrive("disk", false);
        m_bare = fixture.addDrive("media/BARE", true);
        m_osprey = fixture.addDrive("media/OSPREY", false, "OSPREY", QString(), "mmcblk0");
        fixture.addBindMount("elsewhere", "media/RAVEN CARD");
        fixture.install();
        for (const QString& root : {m_raven, m_fixed})
            CardFixture::writeFile(ConfigAccess::configPath(root), config("RAVEN1_2CH"));
        CardFixture::writeFile(ConfigAccess::configPath(m_osprey), config("OSPREY_1CH"));
        touch(m_bare + "/Normal/20240101_100000_INF_1.mp4");
        for (const QString& root : {m_raven, m_osprey}) {
            for (const char* name :
                 {"Normal/20240101_100000_INF_1.mp4", "Normal/20240101_100000_INF_2.mp4",
                  "Event/20240101_101500_EVT_1.mp4", "Event/20240101_101500_EVT_1.avi",
                  "Event/20240101_101500_EVT_1_2.avi", "Normal/notes.txt",
                  "Normal/20241399_100000_INF_1.mp4", "CONFIG/20240101_100000_INF_1.mp4",
                  "20240101_090000_INF_1.mp4"})
                touch(root + '/' + name);
        }
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
    }

    void init() {
        m_messages.clear();
        ConfigAccess::cardRoot.clear();
        CardDrives::clearValidatedRoot();
        ConfigAccess::cardThreadRunning = false;
    }

    void drivesFromTheTables() {
        const QVector<CardDrives::Drive> drives = CardDrives::list();
        QStringList roots;
        for (const CardDrives::Drive& drive : drives)
            roots << drive.root;
        // Not the fixed disk nor a bind mount; a built-in slot although it reports itself fixed.
        QCOMPARE(roots, (QStringList{m_raven, m_bare, m_osprey}));
        QCOMPARE(drives[0].name, QString("RAVEN CARD"));
        QCOMPARE(drives[1].name, QString());
        QVERIFY(drives[0].totalBytes > 0 && drives[0].freeBytes <= drives[0].totalBytes);
        QCOMPARE(CardDrives::sizeText(31890298880ull), QString("29.7GB"));
        QCOMPARE(CardDrives::sizeText(0), QString("0.0GB"));
    }

    void dialogListsCardsWithAConfiguration() {
        SDCardView view;
        QCOMPARE(view.table()->rowCount(), 2);
        QCOMPARE(view.table()->item(0, SDCardView::DriveColumn)->text(), m_raven);
        QCOMPARE(view.table()->item(0, SDCardView::NameColumn)->text(), QString("RAVEN CARD"));
        const CardDrives::Drive drive = CardDrives::list().first();
        QCOMPARE(view.table()->item(0, SDCardView::UsedColumn)->text(),
                 CardDrives::sizeText(drive.totalBytes - drive.freeBytes));
        QVERIFY(view.table()->item(0, SDCardView::FreeColumn)->text().endsWith("GB"));
        QCOMPARE(view.table()->item(1, SDCardView::DriveColumn)->text(), m_osprey);
    }

    void openingACardSendsItsRecordings_data() {
        QTest::addColumn<bool>("raven");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("front files only")
            << true
            << QStringList{"Event/20240101_101500_EVT_1.avi", "Event/20240101_101500_EVT_1.mp4",
                           "Normal/20240101_100000_INF_1.mp4"};
        QTest::newRow("every channel digit")
            << false
            << QStringList{"Event/20240101_101500_EVT_1.avi", "Event/20240101_101500_EVT_1.mp4",
                           "Normal/20240101_100000_INF_1.mp4", "Normal/20240101_100000_INF_2.mp4"};
    }

    void openingACardSendsItsRecordings() {
        QFETCH(bool, raven);
        QFETCH(QStringList, expected);
        const QString root = raven ? m_raven : m_osprey;
        SDCardView view;
        QSignalSpy files(&view, &SDCardView::onSendSDCardFile);
        QSignalSpy stopCheck(&view, &SDCardView::onSendStopSDCheck);
        QSignalSpy stopThread(&view, &SDCardView::onSendStopThread);
        ConfigAccess::cardThreadRunning = true;
        view.show();
        selectRow(view, root);
        view.onClicked_bOpenFolder();
        QVERIFY(m_messages.isEmpty());
        QCOMPARE(files.count(), 1);
        QStringList sent = files.first().first().toStringList();
        for (QString& path : sent) {
            QVERIFY(path.startsWith(root + '/'));
            path = path.mid(root.size() + 1);
        }
        sent.sort();
        QCOMPARE(sent, expected);
        QCOMPARE(stopCheck.count(), 1);
        QCOMPARE(stopThread.count(), 1);
        QVERIFY(!view.isVisible());
        QCOMPARE(ConfigAccess::cardRoot, root);
        QVERIFY(CardDrives::isSafeCardRoot(root));
    }

    void openFailuresSayWhy() {
        SDCardView view;
        QSignalSpy files(&view, &SDCardView::onSendSDCardFile);
        view.onClicked_bOpenFolder();
        // The dialog is open for another try after each failure.
        view.onClicked_bOpenFolder();
        QCOMPARE(m_messages, (QStringList{"SD Card is not selected!", "SD Card is not selected!"}));

        const QByteArray good = CardFixture::readFile(ConfigAccess::configPath(m_raven));
        QByteArray wrongSum = good;
        wrongSum[200] = char(wrongSum[200] + 1);
        const struct {
            QByteArray bytes;
            const char* message;
        } cases[] = {{wrongSum, "checksum is different!"},
                     {CardFixture::configBin("RAVEN9_X", {}), "This model is not supported!"}};
        for (const auto& failure : cases) {
            m_messages.clear();
            CardFixture::writeFile(ConfigAccess::configPath(m_raven), failure.bytes);
            selectRow(view, m_raven);
            view.onClicked_bOpenFolder();
            QCOMPARE(m_messages, QStringList{failure.message});
        }
        m_messages.clear();
        QFile::remove(ConfigAccess::configPath(m_raven));
        view.onClicked_bOpenFolder();
        QFile::rename(m_raven + "/CONFIG", m_raven + "/CONFIG.x");
        QDir().mkpath(ConfigAccess::configPath(m_raven)); // unreadable: a folder
        view.onClicked_bOpenFolder();
        QCOMPARE(m_messages, (QStringList{"Setting file is not exist!", "Error is occured!"}));
        QDir(m_raven + "/CONFIG").removeRecursively();
        QFile::rename(m_raven + "/CONFIG.x", m_raven + "/CONFIG");
        CardFixture::writeFile(ConfigAccess::configPath(m_raven), good);
        QCOMPARE(files.count(), 0);
        QVERIFY(!CardDrives::isSafeCardRoot(m_raven));

        // A card emptied after the listing.
        m_messages.clear();
        QTemporaryDir emptyBase;
        CardFixture empty(emptyBase.path());
        const QString root = empty.addDrive("EMPTY", true);
        CardFixture::writeFile(ConfigAccess::configPath(root), good);
        empty.install();
        SDCardView emptyView;
        selectRow(emptyView, root);
        QDir(root + "/CONFIG").removeRecursively();
        emptyView.onClicked_bOpenFolder();
        QCOMPARE(m_messages, QStringList{"SD Card is Empty!"});

        // No card at all.
        m_messages.clear();
        CardFixture none(emptyBase.filePath("none"));
        none.install();
        SDCardView noCards;
        QCOMPARE(noCards.table()->rowCount(), 0);
        noCards.onClicked_bOpenFolder();
        QCOMPARE(m_messages, QStringList{"SD Card is not connected!"});
        CardFixture(m_dir.path()).install();
    }

    void watchEndsAtOnceWhenBroken() {
        CheckSDThread watch(m_raven);
        watch.start();
        QTest::qWait(100);
        watch.breakThread();
        QVERIFY(watch.wait(5000));
    }

    void sessionForgetsARemovedCard() {
        QTemporaryDir base;
        CardFixture fixture(base.path());
        const QString root = fixture.addDrive("PULLED", true);
        CardFixture::writeFile(ConfigAccess::configPath(root), config("RAVEN2_3CH"));
        touch(root + "/Normal/20240101_100000_INF_1.mp4");
        fixture.install();
        CardSession session;
        QSignalSpy files(&session, &CardSession::onSendSDCardFile);
        QSignalSpy gone(&session, &CardSession::onSendCardContentsGone);
        QTimer::singleShot(0, [root] {
            auto* view = qobject_cast<SDCardView*>(QApplication::activeModalWidget());
            QVERIFY(view != nullptr);
            for (int row = 0; row < view->table()->rowCount(); ++row)
                view->table()->setCurrentCell(row, 0);
            view->onClicked_Item();
            view->onClicked_bOpenFolder();
        });
        session.openCardDialog(nullptr);
        QCOMPARE(files.count(), 1);
        QVERIFY(session.isWatching());
        QVERIFY(ConfigAccess::cardThreadRunning);
        QTest::qWait(1200); // no word while the card is there
        QCOMPARE(gone.count(), 0);
        QVERIFY(QDir(root).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(gone.count(), 1, 2500);
        QCOMPARE(gone.first().first().toString(), root);
        QVERIFY(!session.isWatching());
        QVERIFY(ConfigAccess::cardRoot.isEmpty());
        QVERIFY(CardDrives::validatedRoot().isEmpty());
        QCOMPARE(m_messages, QStringList{"The memory card was removed."});
        CardFixture(m_dir.path()).install();
    }
};

QTEST_MAIN(TestSDCard)
#include "test_sdcard.moc"
