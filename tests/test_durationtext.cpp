// Recording lengths as the file list shows them, read from generated recordings.
#include "AppGlobals.h"
#include "RecordingName.h"

#include <QTemporaryDir>
#include <QtTest>

class TestDurationText : public QObject {
    Q_OBJECT

    QTemporaryDir m_dataFolder;

private slots:
    void initTestCase() {
        QVERIFY(m_dataFolder.isValid());
        AppGlobals::dataFolder = m_dataFolder.path();
    }

    void lengths_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("split channel file") << QString("20240101_120000_INF_1.mp4") << "00:04";
        QTest::newRow("single file, three cameras")
            << QString("20240101_120100_EVT_4.mp4") << "00:03";
        QTest::newRow("avi") << QString("20240101_120200_PRK_1.avi") << "00:03";
        QTest::newRow("59.999 s is still 59") << QString("length_59999ms.mp4") << "00:59";
        QTest::newRow("65 min 7 s") << QString("length_65m07s.mp4") << "65:07";
        QTest::newRow("over 100 min: three digits") << QString("length_101m05s.mp4") << "101:05";
        QTest::newRow("sound only") << QString("audio_only.mp4") << "00:02";
        // Nothing to show for files the reader cannot use.
        QTest::newRow("zero bytes") << QString("empty.mp4") << "";
        QTest::newRow("header cut off") << QString("truncated_moov.mp4") << "";
        QTest::newRow("not a recording") << QString("not_video.mp4") << "";
        QTest::newRow("folder") << QString("folder.mp4") << "";
        QTest::newRow("missing") << QString("20240101_235959_INF_1.mp4") << "";
        QTest::newRow("no streams") << QString("no_streams.mp4") << "";
    }
    void lengths() {
        QFETCH(QString, name);
        QFETCH(QString, text);
        const QString result =
            RecordingName::durationText(QStringLiteral(TELEMETRY_MEDIA "/") + name);
        QCOMPARE(result, text);
        QCOMPARE(result.isNull(), text.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDurationText)
#include "test_durationtext.moc"
