// Saving cameras through the save dialog with the real ffmpeg and ffprobe: the copies, the
// snapshots, a failing or cancelled ffmpeg, and what the user is told.
#include "AppGlobals.h"
#include "FfmpegProgress.h"
#include "FfmpegRunner.h"
#include "PlayerInterface.h"
#include "SaveAsView.h"
#include "SnapshotWriter.h"
#include "TavPrompt.h"
#include "VideoExportPlan.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kMedia = QStringLiteral(PLAYBACK_MEDIA);
const QString kSplit = kMedia + "/20240301_090000_INF_2.mp4";   // cameras _1 _2 _3, 5 s
const QString kPartial = kMedia + "/20240301_091000_EVT_1.mp4"; // _1 and _3 only, 4 s
const QString kTracks = kMedia + "/20240301_092000_USR_4.mp4";  // three tracks + sound, 4 s

struct Probe {
    QStringList codecs; // "video:h264", "audio:aac", in stream order
    QString format;     // "avi", "mov,mp4,m4a,3gp,3g2,mj2"
    double duration = 0;
};

Probe probe(const QString& path) {
    QProcess ffprobe;
    ffprobe.start("ffprobe",
                  {"-v", "error", "-print_format", "json", "-show_streams", "-show_format", path});
    ffprobe.waitForFinished(30000);
    const QJsonObject root = QJsonDocument::fromJson(ffprobe.readAllStandardOutput()).object();
    Probe result;
    for (const QJsonValue& stream : root.value("streams").toArray())
        result.codecs << stream.toObject().value("codec_type").toString() + ':' +
                             stream.toObject().value("codec_name").toString();
    const QJsonObject format = root.value("format").toObject();
    result.format = format.value("format_name").toString();
    result.duration = format.value("duration").toString().toDouble();
    return result;
}

// A stand-in for ffmpeg on the PATH: a shell script with the given body.
void writeScript(const QString& folder, const QString& body) {
    QFile script(folder + "/ffmpeg");
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n" + body.toUtf8() + "\n");
    script.close();
    script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

class TestExport : public QObject {
    Q_OBJECT
    QTemporaryDir m_data;
    QStringList m_messages;
    QByteArray m_path;

    // The dialog for a recording, with only `channels` checked.
    SaveAsView* open(const QString& recording, int channelCount, const QList<int>& channels) {
        PlayerInterface::currentFile = recording;
        PlayerInterface::playChannelCount = channelCount;
        auto* view = new SaveAsView;
        for (int i = 0; i < channelCount; ++i)
            view->findChild<QCheckBox*>(QStringLiteral("item%1").arg(i + 1))
                ->setChecked(channels.contains(i));
        view->show();
        return view;
    }

    // Chooses video or snapshots, the folder and (for video) the kind of file, and saves;
    // waits until the dialog is done with it.
    void save(SaveAsView* view, const QString& mode, const QString& folder,
              const QString& container = QString()) {
        view->findChild<QPushButton*>(mode)->click();
        QVERIFY(view->onFilePage());
        view->findChild<QLineEdit*>("editPath")->setText(folder);
        if (!container.isEmpty())
            view->findChild<QRadioButton*>(container)->click();
        const int before = m_messages.size();
        view->findChild<QPushButton*>("bSave")->click();
        QTRY_VERIFY_WITH_TIMEOUT(m_messages.size() > before || !view->runner()->isRunning(), 60000);
        QTRY_VERIFY_WITH_TIMEOUT(m_messages.size() > before, 60000);
    }

    // Both kinds of video file, by their buttons.
    static void containers() {
        QTest::addColumn<QString>("container");
        QTest::newRow("mp4") << "rMp4";
        QTest::newRow("avi") << "rAvi";
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_data.path();
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
        TavPrompt::askHook = [](const QString&) { return true; };
        m_path = qgetenv("PATH");
    }

    void init() {
        m_messages.clear();
        AppGlobals::videoPath.clear();
        AppGlobals::snapshotPath.clear();
        qputenv("PATH", m_path);
    }

    // Which copies run for which choice, before anything runs.
    void planPicksTheCameraFilesOrTracks() {
        QTemporaryDir out;
        // Separate files: the checked camera's own file, copied under its own name.
        VideoExportPlan split(kSplit, 3, {1}, "mp4", out.path());
        QCOMPARE(split.runs().size(), 1);
        const QString input = QDir::toNativeSeparators(kMedia + "/20240301_090000_INF_2.mp4");
        const QString output = out.path() + "/20240301_090000_INF_2.mp4";
        QCOMPARE(split.runs().at(0).arguments,
                 QStringList({"-y", "-i", input, "-vcodec", "copy", "-map", "0:v:0", "-acodec",
                              "aac", "-map", "0:a?", "-threads", "1", output}));
        // Every camera of the recording is found, whichever camera's file was opened.
        VideoExportPlan all(kSplit, 3, {0, 1, 2}, "avi", out.path());
        QCOMPARE(all.runs().size(), 3);
        QCOMPARE(all.runs().at(2).output, out.path() + "/20240301_090000_INF_3.avi");
        QVERIFY(all.runs().at(0).input.endsWith("20240301_090000_INF_1.mp4"));
        // A camera without its file is named, the others still run.
        VideoExportPlan partial(kPartial, 3, {0, 1, 2}, "mp4", out.path());
        QCOMPARE(partial.runs().size(), 2);
        QCOMPARE(partial.missingChannels(), QList<int>{1});
        // One file: track by track, named after the recording and the camera.
        VideoExportPlan tracks(kTracks, 3, {0, 2}, "avi", out.path());
        QCOMPARE(tracks.runs().size(), 2);
        QCOMPARE(tracks.runs().at(1).arguments,
                 QStringList({"-y", "-i", kTracks, "-vcodec", "copy", "-map", "0:v:2", "-acodec",
                              "aac", "-map", "0:a?", "-threads", "1",
                              out.path() + "/20240301_092000_USR_4_3.avi"}));
        QVERIFY(!VideoExportPlan::isSeparateFiles("20240301_092000_USR_4.mp4"));
        QVERIFY(!VideoExportPlan::isSeparateFiles("20240301_090000_INF_1.MP4"));
        // Saving into the recording's own folder as the same kind would write over it.
        VideoExportPlan over(kSplit, 3, {0}, "mp4", kMedia);
        QVERIFY(over.overwritesInput().endsWith("20240301_090000_INF_1.mp4"));
        QVERIFY(VideoExportPlan(kSplit, 3, {0}, "avi", kMedia).overwritesInput().isEmpty());
    }

    void ffmpegIsTheShippedOneOrTheOneOnThePath() {
        QTemporaryDir program;
        QCOMPARE(VideoExportPlan::program(program.path()),
                 QStandardPaths::findExecutable("ffmpeg"));
        QVERIFY(QDir().mkpath(program.path() + "/library/ffmpeg"));
        writeScript(program.path() + "/library/ffmpeg", "exit 0");
        QCOMPARE(VideoExportPlan::program(program.path()),
                 program.path() + "/library/ffmpeg/ffmpeg");
    }

    // What ffmpeg says, in pieces as they come through the pipes.
    void progressAndErrorsAreRead() {
        FfmpegProgress progress;
        progress.addLog("[info]   Duration: 00:01:0");
        progress.addLog("0.00, start: 0.000000, bitrate: 243 kb/s\n[info] Stream #0:0\n");
        QCOMPARE(progress.durationUs(), qint64(60000000));
        progress.addReport("frame=10\nout_time_us=1500");
        QCOMPARE(progress.doneUs(), qint64(0)); // the number is not complete yet
        progress.addReport("0000\nprogress=continue\n");
        QCOMPARE(progress.fraction(), 0.25);
        progress.addLog("[mp4 @ 0x55d0] [error] Could not write header\n[info] Conversion failed");
        progress.finishLog();
        QCOMPARE(progress.lastError(), QStringLiteral("[mp4 @ 0x55d0] Could not write header"));
        progress.addReport("progress=end\n");
        QCOMPARE(progress.fraction(), 1.0);
        QCOMPARE(FfmpegProgress::parseTime("N/A"), qint64(-1));
    }

    // Only camera 2 of a separate-file recording, in both kinds of file: one copy each,
    // of that camera's file, the picture copied as it is.
    void oneCameraOfSeparateFiles_data() { containers(); }
    void oneCameraOfSeparateFiles() {
        QFETCH(QString, container);
        QTemporaryDir out;
        SaveAsView* view = open(kSplit, 3, {1});
        QSignalSpy progress(view->findChild<QProgressBar*>("progressBar"),
                            &QProgressBar::valueChanged);
        save(view, "bSaveVideo", out.path() + "/new folder", container);
        const QString extension = container == "rMp4" ? "mp4" : "avi";
        const QString output = out.path() + "/new folder/20240301_090000_INF_2." + extension;
        QCOMPARE(QDir(out.path() + "/new folder").entryList(QDir::Files),
                 QStringList{QFileInfo(output).fileName()});
        QVERIFY2(m_messages.last().startsWith("Complete File Download!"),
                 qPrintable(m_messages.last()));
        QVERIFY(m_messages.last().contains(QDir::toNativeSeparators(output)));
        QCOMPARE(view->result(), int(QDialog::Accepted));
        QVERIFY(!progress.isEmpty());
        const Probe copy = probe(output);
        QCOMPARE(copy.format.contains("mp4"), extension == "mp4");
        QCOMPARE(copy.codecs, QStringList{"video:h264"});
        QVERIFY2(qAbs(copy.duration - 5.0) < 0.2, qPrintable(QString::number(copy.duration)));
        QCOMPARE(AppGlobals::videoPath, out.path() + "/new folder");
        delete view;
    }

    // A one-file recording, each camera by its track: "0:v:0", "0:v:1", "0:v:2", with the
    // sound made AAC in each copy.
    void everyTrackOfOneFile_data() { containers(); }
    void everyTrackOfOneFile() {
        QFETCH(QString, container);
        QTemporaryDir out;
        SaveAsView* view = open(kTracks, 3, {0, 1, 2});
        save(view, "bSaveVideo", out.path(), container);
        QVERIFY2(m_messages.last().startsWith("Complete File Download!"),
                 qPrintable(m_messages.last()));
        const QString extension = container == "rMp4" ? "mp4" : "avi";
        // The tracks are red, green and blue pictures: each copy has its own.
        const QStringList colours = {"red", "lime", "blue"};
        for (int camera = 1; camera <= 3; ++camera) {
            const QString output =
                out.path() + QStringLiteral("/20240301_092000_USR_4_%1.").arg(camera) + extension;
            const Probe copy = probe(output);
            QCOMPARE(copy.format.contains("mp4"), extension == "mp4");
            QCOMPARE(copy.codecs, QStringList({"video:h264", "audio:aac"}));
            QVERIFY2(qAbs(copy.duration - 4.0) < 0.2, qPrintable(QString::number(copy.duration)));
            QProcess frame;
            frame.start("ffmpeg", {"-v", "error", "-i", output, "-frames:v", "1", "-vf",
                                   "scale=1:1", "-f", "rawvideo", "-pix_fmt", "rgb24", "-"});
            QVERIFY(frame.waitForFinished(30000));
            const QByteArray rgb = frame.readAllStandardOutput();
            QCOMPARE(rgb.size(), 3);
            const int strongest =
                rgb.indexOf(char(std::max({uchar(rgb[0]), uchar(rgb[1]), uchar(rgb[2])})));
            QCOMPARE(strongest, camera - 1);
        }
        delete view;
    }

    // ffmpeg that fails: its last error line is reported, no file is left, and a file that was
    // at the output's place is there again as it was.
    void failureIsReportedAndNothingIsLost() {
        QTemporaryDir bin;
        QTemporaryDir out;
        writeScript(bin.path(), "for a; do last=\"$a\"; done\n"
                                "printf 'partial' > \"$last\"\n"
                                "echo '[info] Input #0' >&2\n"
                                "echo '[fatal] Stream map matches no streams.' >&2\n"
                                "echo 'To ignore this, add a trailing ? to the map.' >&2\n"
                                "exit 1");
        qputenv("PATH", bin.path().toUtf8() + ':' + m_path);
        const QString earlier = out.path() + "/20240301_090000_INF_1.mp4";
        QVERIFY(writeFile(earlier, "an earlier copy"));
        SaveAsView* view = open(kSplit, 3, {0});
        save(view, "bSaveVideo", out.path(), "rMp4");
        const QString& message = m_messages.last();
        QVERIFY2(!message.contains("Complete File Download!"), qPrintable(message));
        QVERIFY2(message.contains("Stream map matches no streams."), qPrintable(message));
        QCOMPARE(contents(earlier), QByteArray("an earlier copy"));
        QCOMPARE(QDir(out.path()).entryList(QDir::Files),
                 QStringList{QFileInfo(earlier).fileName()});
        QVERIFY(view->isVisible()); // the user can try again
        delete view;
    }

    void cancelLeavesNoFile() {
        QTemporaryDir bin;
        QTemporaryDir out;
        writeScript(bin.path(), "for a; do last=\"$a\"; done\n"
                                "printf 'half a file' > \"$last\"\n"
                                "echo 'out_time_us=1000000'\necho 'progress=continue'\n"
                                "exec sleep 30");
        qputenv("PATH", bin.path().toUtf8() + ':' + m_path);
        SaveAsView* view = open(kSplit, 3, {0, 1});
        view->findChild<QPushButton*>("bSaveVideo")->click();
        view->findChild<QLineEdit*>("editPath")->setText(out.path());
        view->findChild<QPushButton*>("bSave")->click();
        QVERIFY(view->runner()->isRunning());
        const QString output = out.path() + "/20240301_090000_INF_1.mp4";
        QTRY_VERIFY(QFileInfo::exists(output));
        QPushButton* stop = view->findChild<QPushButton*>("bStop");
        QVERIFY(stop->isVisible());
        stop->click();
        QVERIFY(!view->runner()->isRunning());
        QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList());
        QVERIFY(m_messages.isEmpty());
        QVERIFY(!stop->isVisible());
        delete view;
    }

    void missingFfmpegIsNamed() {
        QTemporaryDir empty;
        QTemporaryDir out;
        qputenv("PATH", empty.path().toUtf8());
        SaveAsView* view = open(kSplit, 3, {0});
        save(view, "bSaveVideo", out.path());
        QVERIFY2(m_messages.last().contains("ffmpeg"), qPrintable(m_messages.last()));
        QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList());
        delete view;
    }

    void theRecordingIsNeverWrittenOver() {
        const QByteArray before = contents(kSplit);
        SaveAsView* view = open(kSplit, 3, {1});
        save(view, "bSaveVideo", kMedia, "rMp4");
        QVERIFY2(m_messages.last().contains("recording itself"), qPrintable(m_messages.last()));
        QCOMPARE(contents(kSplit), before);
        delete view;
    }

    // Snapshots: one JPEG per checked camera, named after the recording, the camera and the
    // position, with the camera's picture.
    void snapshotsOfTheCheckedCameras() {
        QTemporaryDir out;
        SaveAsView* view = open(kTracks, 3, {0, 2});
        const QColor colours[3] = {Qt::red, Qt::green, Qt::blue};
        for (int i = 0; i < 3; ++i) {
            QImage image(320, 180, QImage::Format_RGB32);
            image.fill(colours[i]);
            view->setImage(i, image);
        }
        view->setPosition(0.4375);
        save(view, "bSaveSnapshot", out.path() + "/shots");
        QVERIFY2(m_messages.last().startsWith("Complete to Save Snapshot!"),
                 qPrintable(m_messages.last()));
        QCOMPARE(
            QDir(out.path() + "/shots").entryList(QDir::Files),
            QStringList({"20240301_092000_USR_4_1_4375.jpg", "20240301_092000_USR_4_3_4375.jpg"}));
        const QImage third(out.path() + "/shots/20240301_092000_USR_4_3_4375.jpg", "jpg");
        QCOMPARE(third.size(), QSize(320, 180));
        QVERIFY(qBlue(third.pixel(160, 90)) > 200 && qRed(third.pixel(160, 90)) < 60);
        QCOMPARE(AppGlobals::snapshotPath, out.path() + "/shots");
        delete view;
    }

    // Nothing checked: the message, the channel page stays and nothing is made.
    void noCameraChosen() {
        QTemporaryDir out;
        SaveAsView* view = open(kSplit, 3, {});
        AppGlobals::videoPath = out.path() + "/never";
        for (const char* mode : {"bSaveVideo", "bSaveSnapshot"}) {
            m_messages.clear();
            view->findChild<QPushButton*>(mode)->click();
            QCOMPARE(m_messages, QStringList{"There is no select channel"});
            QVERIFY(!view->onFilePage());
        }
        QVERIFY(!QFileInfo::exists(out.path() + "/never"));
        delete view;
    }

    void firstFoldersAreUnderMoviesAndPictures() {
        SaveAsView* view = open(kSplit, 3, {0});
        view->findChild<QPushButton*>("bSaveVideo")->click();
        QCOMPARE(QDir::fromNativeSeparators(view->findChild<QLineEdit*>("editPath")->text()),
                 QStandardPaths::writableLocation(QStandardPaths::MoviesLocation) + "/ZENTA");
        QVERIFY(view->findChild<QRadioButton*>("rMp4")->isVisible());
        view->findChild<QPushButton*>("bBack")->click();
        QVERIFY(!view->onFilePage());
        view->findChild<QPushButton*>("bSaveSnapshot")->click();
        QCOMPARE(QDir::fromNativeSeparators(view->findChild<QLineEdit*>("editPath")->text()),
                 QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + "/ZENTA");
        QVERIFY(!view->findChild<QRadioButton*>("rMp4")->isVisible());
        // Only the recording's cameras are offered.
        PlayerInterface::playChannelCount = 2;
        SaveAsView two;
        QVERIFY(two.findChild<QCheckBox*>("item2")->isEnabled());
        QVERIFY(!two.findChild<QCheckBox*>("item3")->isEnabled());
        delete view;
    }

    // Snapshot names: the position with up to six digits, without its "0.".
    void snapshotNames_data() {
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
    void snapshotNames() {
        QFETCH(QString, recording);
        QFETCH(int, channel);
        QFETCH(double, position);
        QFETCH(QString, expected);
        QCOMPARE(SnapshotWriter::fileName("/p", recording, channel, position), expected);
    }

    // A snapshot that cannot be saved leaves the file that was there.
    void failedSnapshotKeepsTheOldFile() {
        QTemporaryDir dir;
        const QString path = dir.filePath("shot.jpg");
        QVERIFY(writeFile(path, "earlier"));
        QString error;
        QVERIFY(!SnapshotWriter::save(QImage(), path, &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(contents(path), QByteArray("earlier"));
        // A folder that cannot exist (a file is in its way).
        error.clear();
        QImage image(64, 36, QImage::Format_RGB32);
        QVERIFY(!SnapshotWriter::save(image, path + "/inside.jpg", &error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_MAIN(TestExport)
#include "test_export.moc"
