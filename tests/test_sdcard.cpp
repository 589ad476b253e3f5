// Card detection from drive tables made here, the card dialog's listing, opening and messages,
// the watch that notices a card going; and the card format that keeps the camera's
// configuration, with the real mkdosfs on a FAT image. A stand-in udisksctl hides the card
// folder's files while "unmounted" and shows them again on "mount" unless the image was
// formatted meanwhile.
#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFixture.h"
#include "CardSession.h"
#include "CheckSDThread.h"
#include "ConfigAccess.h"
#include "FileFormatThread.h"
#include "SDCardView.h"
#include "TavPrompt.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString touch(const QString& path) {
    CardFixture::writeFile(path, QByteArray());
    return path;
}

const char* const kStandIn = R"(#!/bin/sh
echo "$@" >> "$CARD_TOOL_LOG"
case "$1" in
unmount)
    if [ -n "$CARD_REFUSE" ]; then echo "Not authorized to perform operation" >&2; exit 1; fi
    mkdir -p "$CARD_STASH" && md5sum "$CARD_IMAGE" > "$CARD_STASH.sum"
    find "$CARD_ROOT" -mindepth 1 -maxdepth 1 -exec mv {} "$CARD_STASH/" \;
    ;;
mount)
    if [ -n "$CARD_LOST" ]; then rmdir "$CARD_ROOT"; echo "Object is not a mountable filesystem" >&2; exit 1; fi
    if md5sum -c --status "$CARD_STASH.sum"; then
        find "$CARD_STASH" -mindepth 1 -maxdepth 1 -exec mv {} "$CARD_ROOT/" \;
    fi
    rm -rf "$CARD_STASH" "$CARD_STASH.sum"
    ;;
esac
)";

bool makeScript(const QString& path, const QByteArray& text) {
    return CardFixture::writeFile(path, text) &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(30000);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
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

    void selectRow(SDCardView& view, const QString& root) {
        for (int row = 0; row < view.table()->rowCount(); ++row) {
            if (view.table()->item(row, SDCardView::DriveColumn)->text() == root) {
                view.table()->setCurrentCell(row, 0);
                view.onClicked_Item();
            }
        }
    }

    // ---- The format ----
    QString m_base;
    QString m_root;
    QString m_image;
    QString m_outside;
    QByteArray m_config;
    QByteArray m_path;

    QString toolLog() const { return CardFixture::readFile(m_base + "/tool.log"); }

    // A fresh card: configuration, recordings, a link to a folder outside, an old label.
    void makeCard(const QString& name) {
        QVERIFY2(!QStandardPaths::findExecutable("mkdosfs", {"/usr/sbin", "/sbin"}).isEmpty(),
                 "mkdosfs (dosfstools, installed by the set-up) is needed");
        m_base = m_dir.filePath(name);
        m_image = m_base + "/card.img";
        QDir().mkpath(m_base);
        QFile image(m_image);
        QVERIFY(image.open(QIODevice::WriteOnly) && image.resize(64 * 1024 * 1024));
        image.close();
        QVERIFY(QProcess::execute("mkdosfs", {"-F", "32", "-n", "OLDCARD", m_image}) == 0);
        CardFixture fixture(m_base);
        m_root = fixture.addDrive("media/HERON", true, "OLDCARD", m_image);
        fixture.install();
        m_config = CardFixture::shippedConfigBin("HERON07_D21", {{1, 1}});
        QVERIFY(CardFixture::writeFile(m_root + "/CONFIG/config.bin", m_config));
        QVERIFY(CardFixture::writeFile(m_root + "/CONFIG/wifi.dat", "ssid"));
        QVERIFY(CardFixture::writeFile(m_root + "/Normal/20240101_100000_INF_1.mp4", "video"));
        m_outside = m_base + "/outside";
        QVERIFY(CardFixture::writeFile(m_outside + "/keep.txt", "not the card's"));
        QVERIFY(QFile::link(m_outside, m_root + "/Normal/link"));

        ConfigAccess access;
        QCOMPARE(access.readConfig(QDir(m_root)), 0);
        ConfigAccess::cardRoot = m_root;
        CardDrives::setValidatedRoot(m_root);
        qputenv("CARD_ROOT", m_root.toLocal8Bit());
        qputenv("CARD_IMAGE", m_image.toLocal8Bit());
        qputenv("CARD_STASH", (m_base + "/stash").toLocal8Bit());
        qputenv("CARD_TOOL_LOG", (m_base + "/tool.log").toLocal8Bit());
    }

    // The codes the format reports; what it says of a failure goes into details.
    QList<int> format(int mode, QStringList* details = nullptr) {
        FileFormatThread thread;
        QList<int> codes;
        connect(
            &thread, &FileFormatThread::threadFinished, &thread,
            [&codes](int code) { codes << code; }, Qt::DirectConnection);
        if (details != nullptr)
            connect(
                &thread, &FileFormatThread::threadDetail, &thread,
                [details](const QString& text) { *details << text; }, Qt::DirectConnection);
        thread.setMode(mode);
        thread.start();
        [&] { QVERIFY(thread.wait(60000)); }();
        return codes;
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.filePath("data");
        QDir().mkpath(AppGlobals::dataFolder);
        CardFixture fixture(m_dir.path());
        m_raven = fixture.addDrive("media/RAVEN CARD", true, "RAVEN CARD");
        m_fixed = fixture.addDrive("disk", false);
        m_bare = fixture.addDrive("media/BARE", true);
        m_osprey = fixture.addDrive("media/OSPREY", false, "OSPREY", QString(), "mmcblk0");
        fixture.addBindMount("elsewhere", "media/RAVEN CARD");
        fixture.install();
        for (const QString& root : {m_raven, m_fixed})
            CardFixture::writeFile(ConfigAccess::configPath(root),
                                   CardFixture::shippedConfigBin("RAVEN1_2CH"));
        CardFixture::writeFile(ConfigAccess::configPath(m_osprey),
                               CardFixture::shippedConfigBin("OSPREY_1CH"));
        touch(m_bare + "/Normal/20240101_100000_INF_1.mp4");
        for (const QString& root : {m_raven, m_osprey}) {
            for (const char* name :
                 {"Normal/20240101_100000_INF_1.mp4", "Normal/20240101_100000_INF_2.mp4",
                  "Normal/20240101_100500_USR_4.mp4", "Event/20240101_101500_EVT_1.mp4",
                  "Event/20240101_101500_EVT_1.avi", "Event/20240101_101500_EVT_1_2.avi",
                  "Normal/notes.txt", "Normal/20241399_100000_INF_1.mp4",
                  "CONFIG/20240101_100000_INF_1.mp4", "20240101_090000_INF_1.mp4"})
                touch(root + '/' + name);
        }
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
        AppGlobals::programFolder = QCoreApplication::applicationDirPath();
        QVERIFY(makeScript(m_dir.filePath("tools/udisksctl"), kStandIn));
        QVERIFY(makeScript(m_dir.filePath("failing/mkdosfs"),
                           "#!/bin/sh\necho 'mkfs.fat: unable to open' >&2\nexit 1\n"));
        m_path = qgetenv("PATH");
    }

    void init() {
        m_messages.clear();
        ConfigAccess::cardRoot.clear();
        CardDrives::clearValidatedRoot();
        ConfigAccess::cardThreadRunning = false;
        qunsetenv("CARD_REFUSE");
        qunsetenv("CARD_LOST");
        qputenv("PATH", m_dir.filePath("tools").toLocal8Bit() + ':' + m_path);
    }

    void cleanupTestCase() { qputenv("PATH", m_path); }

    // The drives: not the fixed disk nor a bind mount; a built-in slot although it reports
    // itself fixed. The dialog lists those with a configuration.
    void drivesFromTheTablesAndTheDialogsList() {
        const QVector<CardDrives::Drive> drives = CardDrives::list();
        QStringList roots;
        for (const CardDrives::Drive& drive : drives)
            roots << drive.root;
        QCOMPARE(roots, (QStringList{m_raven, m_bare, m_osprey}));
        QCOMPARE(drives[1].name, QString());
        QVERIFY(drives[0].totalBytes > 0 && drives[0].freeBytes <= drives[0].totalBytes);
        QCOMPARE(CardDrives::sizeText(31890298880ull), QString("29.7GB"));
        QCOMPARE(CardDrives::sizeText(0), QString("0.0GB"));

        SDCardView view;
        QCOMPARE(view.table()->rowCount(), 2);
        QCOMPARE(view.table()->item(0, SDCardView::DriveColumn)->text(), m_raven);
        QCOMPARE(view.table()->item(0, SDCardView::NameColumn)->text(), QString("RAVEN CARD"));
        const CardDrives::Drive& drive = drives.first();
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
                           "Normal/20240101_100000_INF_1.mp4", "Normal/20240101_100500_USR_4.mp4"};
        QTest::newRow("every channel digit")
            << false
            << QStringList{"Event/20240101_101500_EVT_1.avi", "Event/20240101_101500_EVT_1.mp4",
                           "Normal/20240101_100000_INF_1.mp4", "Normal/20240101_100000_INF_2.mp4",
                           "Normal/20240101_100500_USR_4.mp4"};
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
        CardFixture::writeFile(ConfigAccess::configPath(root),
                               CardFixture::shippedConfigBin("RAVEN2_3CH"));
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

    // ---- The format (after the others: each case mounts a card of its own) ----

    void formatsTheImageAndKeepsTheConfiguration() {
        makeCard("formats");
        QCOMPARE(format(1), QList<int>{0});
        const QString info = run("file", {m_image});
        QVERIFY2(info.contains("label: \"HERON07_D21\""), qPrintable(info));
        QVERIFY2(info.contains("sectors/cluster 64") && info.contains("FAT (32 bit)"),
                 qPrintable(info));
        QVERIFY(run("mdir", {"-i", m_image, "-b", "::"}).trimmed().isEmpty());
        // The formatted card shows none of its recordings, but its configuration.
        QCOMPARE(QDir(m_root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{"CONFIG"});
        QCOMPARE(CardFixture::readFile(m_root + "/CONFIG/config.bin"), m_config);
        QCOMPARE(CardFixture::readFile(m_root + "/CONFIG/wifi.dat"), QByteArray("ssid"));
        QVERIFY(!QDir(AppGlobals::dataFolder + "/CONFIG").exists());
        QCOMPARE(toolLog().count("mount -b " + m_image), 2); // unmounted and mounted again
        QVERIFY(!FileFormatThread::busy);
    }

    void failedFormatEmptiesOnlyTheCard() {
        makeCard("fails");
        qputenv("PATH", m_dir.filePath("failing").toLocal8Bit() + ':' +
                            m_dir.filePath("tools").toLocal8Bit() + ':' + m_path);
        QCOMPARE(format(1), (QList<int>{FileFormatThread::FormatterFailed, 0}));
        QVERIFY(run("file", {m_image}).contains("OLDCARD"));
        QCOMPARE(QDir(m_root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{"CONFIG"});
        QCOMPARE(CardFixture::readFile(m_root + "/CONFIG/config.bin"), m_config);
        // The link on the card went, the folder it pointed to did not.
        QCOMPARE(CardFixture::readFile(m_outside + "/keep.txt"), QByteArray("not the card's"));
        QVERIFY(QFile::exists(m_image));
        QVERIFY(!QDir(AppGlobals::dataFolder + "/CONFIG").exists());
    }

    void cardLeftAsItWas_data() {
        QTest::addColumn<QString>("why");
        QTest::addColumn<QList<int>>("codes");
        QTest::addColumn<QString>("told");
        const int notFormatted = FileFormatThread::NotFormatted;
        QTest::newRow("unmount refused")
            << "refused" << QList<int>{notFormatted, 0}
            << "could not be unmounted (Not authorized to perform operation)";
        QTest::newRow("another card than the one opened")
            << "not opened" << QList<int>{notFormatted, 0} << "not the one that was opened";
        QTest::newRow("configuration not saved")
            << "unsaved" << QList<int>{FileFormatThread::SaveFailed, notFormatted, 0}
            << "configuration could not be saved";
    }

    void cardLeftAsItWas() {
        QFETCH(QString, why);
        QFETCH(QList<int>, codes);
        QFETCH(QString, told);
        makeCard("left-" + why);
        if (why == "refused")
            qputenv("CARD_REFUSE", "1");
        else if (why == "not opened")
            CardDrives::setValidatedRoot(m_base + "/media/OTHER");
        else // a file of CONFIG that cannot be copied
            QVERIFY(QFile::link(m_base + "/nowhere", m_root + "/CONFIG/broken.dat"));
        const QByteArray image = CardFixture::readFile(m_image);
        QStringList details;
        QCOMPARE(format(1, &details), codes);
        QCOMPARE(details.size(), 1);
        QVERIFY2(details[0].contains(told), qPrintable(details[0]));
        QVERIFY(CardFixture::readFile(m_image) == image);
        QCOMPARE(CardFixture::readFile(m_root + "/Normal/20240101_100000_INF_1.mp4"),
                 QByteArray("video"));
        QCOMPARE(CardFixture::readFile(m_root + "/CONFIG/config.bin"), m_config);
        QCOMPARE(toolLog().count("mount"), why == "refused" ? 1 : 0);
    }

    void cardWithoutConfigGetsAnEmptyOne() {
        makeCard("noconfig");
        QVERIFY(QDir(m_root + "/CONFIG").removeRecursively());
        QCOMPARE(format(1), QList<int>{0});
        QVERIFY(QDir(m_root + "/CONFIG").exists());
        QVERIFY(QDir(m_root + "/CONFIG").isEmpty());
        QVERIFY(run("file", {m_image}).contains("HERON07_D21"));
    }

    void initialiseWithoutConfigBinStillFormats() {
        makeCard("mode2");
        QVERIFY(QFile::remove(m_root + "/CONFIG/config.bin"));
        QCOMPARE(format(2), (QList<int>{FileFormatThread::SaveFailed, 0}));
        QVERIFY(run("file", {m_image}).contains("HERON07_D21"));
        QVERIFY(QDir(m_root + "/CONFIG").isEmpty()); // wifi.dat is not kept in this mode
    }

    void configurationNotBackOnTheCardIsKept() {
        makeCard("lost");
        qputenv("CARD_LOST", "1");
        QCOMPARE(format(1), (QList<int>{FileFormatThread::RestoreFailed, 0}));
        const QStringList kept = QDir(AppGlobals::dataFolder).entryList({"CONFIG-*"}, QDir::Dirs);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(CardFixture::readFile(AppGlobals::dataFolder + '/' + kept[0] + "/config.bin"),
                 m_config);
        QVERIFY(!QDir(m_root).exists()); // nothing was written where the card was
        QVERIFY(QDir(AppGlobals::dataFolder + '/' + kept[0]).removeRecursively());
    }

    void failuresAreToldAndTheEndReported() {
        makeCard("told");
        qputenv("CARD_REFUSE", "1");
        ConfigAccess access;
        QSignalSpy finished(&access, &ConfigAccess::onSendFileFormatFinished);
        QCOMPARE(access.FileFormat(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 60000);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages[0].startsWith("Fail to format SDCard!\nThe SD card could not be "
                                          "unmounted"),
                 qPrintable(m_messages[0]));
        QVERIFY(access.formatThread() == nullptr);
    }
};

QTEST_MAIN(TestSDCard)
#include "test_sdcard.moc"
