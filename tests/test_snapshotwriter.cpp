// Snapshot files: their names, and that a failed save leaves what was there.
#include "SnapshotWriter.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

class TestSnapshotWriter : public QObject {
    Q_OBJECT

private slots:
    void namesCarryCameraAndPosition_data() {
        QTest::addColumn<QString>("recording");
        QTest::addColumn<int>("channel");
        QTest::addColumn<double>("position");
        QTest::addColumn<QString>("expected");
        QTest::newRow("six digits") << "20240301_090000_INF_1.mp4" << 0 << 0.123456789
                                    << "/p/20240301_090000_INF_1_1_123457.jpg";
        QTest::newRow("short") << "20240301_092000_USR_4.mp4" << 2 << 0.5
                               << "/p/20240301_092000_USR_4_3_5.jpg";
        QTest::newRow("start, no point") << "a.avi" << 1 << 0.0 << "/p/a_2_0.jpg";
        QTest::newRow("end, no point") << "a.avi" << 0 << 1.0 << "/p/a_1_0.jpg";
    }
    void namesCarryCameraAndPosition() {
        QFETCH(QString, recording);
        QFETCH(int, channel);
        QFETCH(double, position);
        QFETCH(QString, expected);
        QCOMPARE(SnapshotWriter::fileName("/p", recording, channel, position), expected);
    }

    void saveWritesAJpegAndFailuresKeepTheOldFile() {
        QTemporaryDir dir;
        const QString path = dir.filePath("new/folder/shot.jpg");
        QImage image(64, 36, QImage::Format_RGB32);
        image.fill(Qt::red);
        QString error;
        QVERIFY(SnapshotWriter::save(image, path, &error));
        QImage saved(path, "jpg");
        QCOMPARE(saved.size(), QSize(64, 36));
        QVERIFY(qRed(saved.pixel(32, 18)) > 200);

        // No picture: nothing is written, the earlier file stays as it was.
        const QByteArray before = [&] {
            QFile f(path);
            f.open(QIODevice::ReadOnly);
            return f.readAll();
        }();
        QVERIFY(!SnapshotWriter::save(QImage(), path, &error));
        QVERIFY(!error.isEmpty());
        QFile after(path);
        QVERIFY(after.open(QIODevice::ReadOnly));
        QCOMPARE(after.readAll(), before);

        // A folder that cannot exist (a file is in its way).
        error.clear();
        QVERIFY(!SnapshotWriter::save(image, path + "/inside.jpg", &error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_MAIN(TestSnapshotWriter)
#include "test_snapshotwriter.moc"
