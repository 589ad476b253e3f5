// The card format that keeps the camera's configuration, with the real mkdosfs on a FAT image.
// A stand-in udisksctl hides the card folder's files while "unmounted" and shows them again on
// "mount" unless the image was formatted meanwhile.
#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFixture.h"
#include "ConfigAccess.h"
#include "FileFormatThread.h"
#include "TavPrompt.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

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

class TestFileFormat : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_base;
    QString m_root;
    QString m_image;
    QString m_outside;
    QByteArray m_config;
    QByteArray m_path;

    QString toolLog() const { return CardFixture::readFile(m_base + "/tool.log"); }

    // A fresh card: configuration, recordings, a link to a folder outside, an old label.
    void makeCard(const QString& name) {
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
        const auto widths =
            CardFixture::layout(CardFixture::shippedJson("configStr.json"), "HERON07_D21");
        m_config = CardFixture::configBin("HERON07_D21", CardFixture::blocks(widths, {{1, 1}}));
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
        if (QStandardPaths::findExecutable("mkdosfs", {"/usr/sbin", "/sbin"}).isEmpty())
            QSKIP("mkdosfs is not installed");
        AppGlobals::dataFolder = m_dir.filePath("data");
        QDir().mkpath(AppGlobals::dataFolder);
        AppGlobals::programFolder = QCoreApplication::applicationDirPath();
        QVERIFY(makeScript(m_dir.filePath("tools/udisksctl"), kStandIn));
        QVERIFY(makeScript(m_dir.filePath("failing/mkdosfs"),
                           "#!/bin/sh\necho 'mkfs.fat: unable to open' >&2\nexit 1\n"));
        m_path = qgetenv("PATH");
    }

    void init() {
        qunsetenv("CARD_REFUSE");
        qunsetenv("CARD_LOST");
        qputenv("PATH", m_dir.filePath("tools").toLocal8Bit() + ':' + m_path);
    }

    void cleanupTestCase() { qputenv("PATH", m_path); }

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
        QCOMPARE(toolLog(), QString("unmount -b %1 --no-user-interaction\n"
                                    "mount -b %1 --no-user-interaction\n")
                                .arg(m_image));
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
        QStringList messages;
        TavPrompt::informHook = [&messages](const QString& text) { messages << text; };
        ConfigAccess access;
        QSignalSpy finished(&access, &ConfigAccess::onSendFileFormatFinished);
        QCOMPARE(access.FileFormat(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 60000);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages[0].startsWith("Fail to format SDCard!\nThe SD card could not be "
                                        "unmounted"),
                 qPrintable(messages[0]));
        QVERIFY(access.formatThread() == nullptr);
        TavPrompt::informHook = nullptr;
    }
};

QTEST_MAIN(TestFileFormat)
#include "test_fileformat.moc"
