// Saving cameras through the save dialog with the real ffmpeg and ffprobe (the copies, the
// snapshots, a failing or cancelled ffmpeg, what the user is told), and the one-page report:
// its values, the camera choice, the PDF read back with pdftotext and pdftoppm, the preview.
#include "AppGlobals.h"
#include "FfmpegProgress.h"
#include "FfmpegRunner.h"
#include "PlaybackState.h"
#include "PreviewPrint.h"
#include "PrintChannelSelectView.h"
#include "PrintView.h"
#include "ReportScene.h"
#include "SaveAsView.h"
#include "SnapshotWriter.h"
#include "TavPrompt.h"
#include "VideoExportPlan.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>

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

QByteArray output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(30000);
    return process.readAllStandardOutput();
}

Probe probe(const QString& path) {
    const QJsonObject root =
        QJsonDocument::fromJson(output("ffprobe", {"-v", "error", "-print_format", "json",
                                                   "-show_streams", "-show_format", path}))
            .object();
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

QImage filled(const QColor& colour, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QString pdfText(const QString& pdf) {
    return QString::fromUtf8(output("pdftotext", {"-layout", pdf, "-"}));
}

// The height, in points, of the first word of a PDF's text that is `word`; 0 when none is.
double pdfWordHeight(const QString& pdf, const QString& word) {
    const QString boxes = QString::fromUtf8(output("pdftotext", {"-bbox", pdf, "-"}));
    const QRegularExpression found(
        QStringLiteral("<word xMin=\"[\\d.]+\" yMin=\"([\\d.]+)\" xMax=\"[\\d.]+\" "
                       "yMax=\"([\\d.]+)\">%1</word>")
            .arg(QRegularExpression::escape(word)));
    const QRegularExpressionMatch match = found.match(boxes);
    return match.hasMatch() ? match.captured(2).toDouble() - match.captured(1).toDouble() : 0;
}

QImage pdfPage(const QString& pdf, const QString& folder) {
    output("pdftoppm", {"-r", "48", "-png", "-singlefile", pdf, folder + "/page"});
    return QImage(folder + "/page.png");
}

// The rows of a column of pixels, from the top, where a colour (within a tolerance) shows.
QList<int> rowsOf(const QImage& image, int x, QRgb colour) {
    QList<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb pixel = image.pixel(x, y);
        if (qAbs(qRed(pixel) - qRed(colour)) < 40 && qAbs(qGreen(pixel) - qGreen(colour)) < 40 &&
            qAbs(qBlue(pixel) - qBlue(colour)) < 40)
            rows << y;
    }
    return rows;
}

} // namespace

class TestExport : public QObject {
    Q_OBJECT
    QTemporaryDir m_data;
    QStringList m_messages;
    QByteArray m_path;
    std::unique_ptr<SaveAsView> m_view;

    // The dialog for a recording, with only `channels` checked.
    SaveAsView* open(const QString& recording, int channelCount, const QList<int>& channels) {
        PlaybackState::currentFile = recording;
        PlaybackState::playChannelCount = channelCount;
        m_view = std::make_unique<SaveAsView>();
        for (int i = 0; i < channelCount; ++i)
            m_view->findChild<QCheckBox*>(QStringLiteral("item%1").arg(i + 1))
                ->setChecked(channels.contains(i));
        m_view->show();
        return m_view.get();
    }

    // An ffmpeg first on the PATH that writes `partial` where the copy goes (its last
    // argument) and then runs `rest`.
    void fakeFfmpeg(const QTemporaryDir& bin, const QString& partial, const QString& rest) {
        writeScript(bin.path(),
                    "for a; do last=\"$a\"; done\nprintf '" + partial + "' > \"$last\"\n" + rest);
        qputenv("PATH", bin.path().toUtf8() + ':' + m_path);
    }

    // Chooses video or snapshots, the folder and kind of file, saves, and waits for the end.
    void save(SaveAsView* view, const QString& mode, const QString& folder,
              const QString& container = QString()) {
        view->findChild<QPushButton*>(mode)->click();
        QVERIFY(view->onFilePage());
        view->findChild<QLineEdit*>("editPath")->setText(folder);
        if (!container.isEmpty())
            view->findChild<QRadioButton*>(container)->click();
        const int before = m_messages.size();
        view->findChild<QPushButton*>("bSave")->click();
        QTRY_VERIFY_WITH_TIMEOUT(m_messages.size() > before, 60000);
    }

    // A recording paused at 65 s of 100 s; telemetry sample 65 says where the car is.
    void playRecording() {
        PlaybackState::currentFile = "/cards/DCIM/20240301_090000_INF_1.mp4";
        PlaybackState::playStatus = PlaybackState::PlayPaused;
        PlaybackState::playChannelCount = 3;
        PlaybackState::currentTime = 65000;
        PlaybackState::totalTime = 100000;
        PlaybackState::telemetryPresent = true;
        PlaybackState::gpsPresent = true;
        PlaybackState::gpsList.clear();
        PlaybackState::gSensorList.clear();
        for (int i = 0; i < 100; ++i) {
            PlaybackState::gpsList << GpsPoint{
                i, 37.12345f + (i - 65) * 0.001f, 127.54321f, 20.0f + (i == 65 ? 22.5f : 0), 1, 1};
            PlaybackState::gSensorList << GSensorPoint{i, i == 65 ? 0.125f : 0.0f, -0.25f, 1.0f};
        }
    }

    // The report of camera 2 (green), with a blue map, saved as PDF; returns its path.
    QString savedReport(const QString& folder, int speedUnit, const QString& memo) {
        PrintChannelSelectView select;
        ReportScene scene = ReportScene::fromPlayback("RAVEN1_A", speedUnit);
        scene.mapImage = filled(QColor(0, 0, 255), QSize(300, 500));
        select.setScene(scene);
        select.setImage(0, filled(QColor(255, 0, 0), QSize(640, 360)));
        select.setImage(1, filled(QColor(0, 255, 0), QSize(640, 360)));
        select.show();
        select.findChild<QRadioButton*>("item2")->click();
        select.findChild<QPushButton*>("bOk")->click();
        PrintView* report = select.printView();
        if (report == nullptr || !report->isVisible())
            return QString();
        report->memoEditor()->setPlainText(memo);
        const QString pdf = folder + "/report.pdf";
        TavPrompt::saveFileHook = [pdf](const QString& suggested) {
            return suggested.endsWith("20240301_090000_INF_1_report.pdf") ? pdf : QString();
        };
        report->findChild<QPushButton*>("bSavePdf")->click();
        TavPrompt::saveFileHook = nullptr;
        // (Closing the report closes the choice too: test_playthrough's print waits for it.)
        return pdf;
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
        playRecording();
    }

    void cleanup() { m_view.reset(); }

    // Which copies run for which choice, before anything runs.
    void planFindsEveryCameraAndNamesTheMissing() {
        QTemporaryDir out;
        // Every camera of the recording is found, whichever camera's file was opened.
        VideoExportPlan all(kSplit, 3, {0, 1, 2}, "avi", out.path());
        QCOMPARE(all.runs().size(), 3);
        QCOMPARE(all.runs().at(2).output, out.path() + "/20240301_090000_INF_3.avi");
        QVERIFY(all.runs().at(0).input.endsWith("20240301_090000_INF_1.mp4"));
        // A camera without its file is named, the others still run.
        VideoExportPlan partial(kPartial, 3, {0, 1, 2}, "mp4", out.path());
        QCOMPARE(partial.runs().size(), 2);
        QCOMPARE(partial.missingChannels(), QList<int>{1});
        QVERIFY(!VideoExportPlan::isSeparateFiles("20240301_092000_USR_4.mp4"));
        QVERIFY(!VideoExportPlan::isSeparateFiles("20240301_090000_INF_1.MP4"));
        // Into the recording's own folder only another kind writes over nothing (the same
        // kind: theRecordingIsNeverWrittenOver).
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

    // Camera 2 of separate files and every track of one file, as MP4 and AVI, in colour.
    void savesTheChosenCameras_data() {
        QTest::addColumn<QString>("recording");
        QTest::addColumn<QList<int>>("cameras");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QStringList>("codecs");
        QTest::addColumn<double>("seconds");
        for (const char* extension : {"mp4", "avi"}) {
            QTest::addRow("camera 2, %s", extension)
                << kSplit << QList<int>{1} << extension << QStringList{"video:h264"} << 5.0;
            QTest::addRow("tracks, %s", extension) << kTracks << QList<int>{0, 1, 2} << extension
                                                   << QStringList{"video:h264", "audio:aac"} << 4.0;
        }
    }
    void savesTheChosenCameras() {
        QFETCH(QString, recording);
        QFETCH(QList<int>, cameras);
        QFETCH(QString, extension);
        QFETCH(QStringList, codecs);
        QFETCH(double, seconds);
        QTemporaryDir out;
        const QString folder = out.path() + "/new folder";
        SaveAsView* view = open(recording, 3, cameras);
        QSignalSpy progress(view->findChild<QProgressBar*>("progressBar"),
                            &QProgressBar::valueChanged);
        save(view, "bSaveVideo", folder, extension == "mp4" ? "rMp4" : "rAvi");
        QVERIFY2(m_messages.last().startsWith("Complete File Download!"),
                 qPrintable(m_messages.last()));
        QCOMPARE(view->result(), int(QDialog::Accepted));
        QVERIFY(!progress.isEmpty());
        QCOMPARE(AppGlobals::videoPath, folder);
        QStringList names;
        for (int camera : cameras)
            names << (recording == kSplit
                          ? QStringLiteral("20240301_090000_INF_%1.").arg(camera + 1)
                          : QStringLiteral("20240301_092000_USR_4_%1.").arg(camera + 1)) +
                         extension;
        QCOMPARE(QDir(folder).entryList(QDir::Files), names);
        QVERIFY(m_messages.last().contains(QDir::toNativeSeparators(folder + '/' + names[0])));
        for (int i = 0; i < cameras.size(); ++i) {
            const Probe copy = probe(folder + '/' + names[i]);
            QCOMPARE(copy.format.contains("mp4"), extension == "mp4");
            QCOMPARE(copy.codecs, codecs);
            QVERIFY2(qAbs(copy.duration - seconds) < 0.2,
                     qPrintable(QString::number(copy.duration)));
            // The cameras are red, green and blue pictures.
            const QByteArray rgb =
                output("ffmpeg", {"-v", "error", "-i", folder + '/' + names[i], "-frames:v", "1",
                                  "-vf", "scale=1:1", "-f", "rawvideo", "-pix_fmt", "rgb24", "-"});
            QCOMPARE(rgb.size(), 3);
            QCOMPARE(rgb.indexOf(char(std::max({uchar(rgb[0]), uchar(rgb[1]), uchar(rgb[2])}))),
                     cameras[i]);
        }
    }

    // A failing ffmpeg: its last error is told, and what was at the output's place stays.
    void failureIsReportedAndNothingIsLost() {
        QTemporaryDir bin;
        QTemporaryDir out;
        fakeFfmpeg(bin, "partial",
                   "echo '[info] Input #0' >&2\n"
                   "echo '[fatal] Stream map matches no streams.' >&2\n"
                   "echo 'To ignore this, add a trailing ? to the map.' >&2\nexit 1");
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
    }

    void cancelLeavesNoFile() {
        QTemporaryDir bin;
        QTemporaryDir out;
        fakeFfmpeg(bin, "half a file",
                   "echo 'out_time_us=1000000'\necho 'progress=continue'\nexec sleep 30");
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
    }

    void missingFfmpegIsNamed() {
        QTemporaryDir empty;
        QTemporaryDir out;
        qputenv("PATH", empty.path().toUtf8());
        SaveAsView* view = open(kSplit, 3, {0});
        save(view, "bSaveVideo", out.path());
        QVERIFY2(m_messages.last().contains("ffmpeg"), qPrintable(m_messages.last()));
        QCOMPARE(QDir(out.path()).entryList(QDir::Files), QStringList());
    }

    void theRecordingIsNeverWrittenOver() {
        const QByteArray before = contents(kSplit);
        SaveAsView* view = open(kSplit, 3, {1});
        save(view, "bSaveVideo", kMedia, "rMp4");
        QVERIFY2(m_messages.last().contains("recording itself"), qPrintable(m_messages.last()));
        QCOMPARE(contents(kSplit), before);
    }

    // One JPEG per checked camera, named after recording, camera and position.
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
        // The pictures themselves and the folder kept for next time: test_playthrough.
        QCOMPARE(
            QDir(out.path() + "/shots").entryList(QDir::Files),
            QStringList({"20240301_092000_USR_4_1_4375.jpg", "20240301_092000_USR_4_3_4375.jpg"}));
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
    }

    // The first folders (under Videos and Pictures) are where test_firstrun's saves go.
    void kindOfFileOnlyForVideo() {
        SaveAsView* view = open(kSplit, 3, {0});
        view->findChild<QPushButton*>("bSaveVideo")->click();
        QVERIFY(view->findChild<QRadioButton*>("rMp4")->isVisible());
        view->findChild<QPushButton*>("bBack")->click();
        QVERIFY(!view->onFilePage());
        view->findChild<QPushButton*>("bSaveSnapshot")->click();
        QVERIFY(!view->findChild<QRadioButton*>("rMp4")->isVisible());
        // Only the recording's cameras are offered.
        PlaybackState::playChannelCount = 2;
        SaveAsView two;
        QVERIFY(two.findChild<QCheckBox*>("item2")->isEnabled());
        QVERIFY(!two.findChild<QCheckBox*>("item3")->isEnabled());
    }

    // Snapshot names: the position with up to six digits, without its "0.".
    void snapshotNames() {
        QCOMPARE(SnapshotWriter::fileName("/p", "20240301_090000_INF_1.mp4", 0, 0.123456789),
                 QString("/p/20240301_090000_INF_1_1_123457.jpg"));
        QCOMPARE(SnapshotWriter::fileName("/p", "20240301_092000_USR_4.mp4", 2, 0.5),
                 QString("/p/20240301_092000_USR_4_3_5.jpg"));
        QCOMPARE(SnapshotWriter::fileName("/p", "a.avi", 1, 0.0), QString("/p/a_2_0.jpg"));
        QCOMPARE(SnapshotWriter::fileName("/p", "a.avi", 0, 1.0), QString("/p/a_1_0.jpg"));
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
    // ---- The report ----

    void valuesOfTheCurrentTime() {
        // At 65 s of 100 s, sample 65: the PDF test reads its values back.
        QCOMPARE(ReportScene::coordinateText(7.5), QStringLiteral("07.50000"));
        QCOMPARE(ReportScene::coordinateText(-3.25), QStringLiteral("-03.25000"));
        // No fix at this moment: no position, the G-sensor values stay.
        PlaybackState::gpsList[65].latitude = 0;
        PlaybackState::gpsList[65].longitude = 0;
        ReportScene scene = ReportScene::fromPlayback(QString(), 1);
        QVERIFY(scene.latitude.isEmpty() && scene.speed.isEmpty());
        QCOMPARE(scene.gSensorZ, QStringLiteral("1.000"));
        // No telemetry at all, and a name without its time.
        PlaybackState::telemetryPresent = false;
        PlaybackState::currentFile = "/x/drive.mp4";
        scene = ReportScene::fromPlayback(QString(), 1);
        QVERIFY(scene.gSensorX.isEmpty() && scene.latitude.isEmpty() && scene.date.isEmpty());
    }

    void reportWithoutACamera() {
        PrintChannelSelectView select;
        auto* front = select.findChild<QRadioButton*>("item1");
        QVERIFY(front->isChecked());
        front->setAutoExclusive(false);
        front->setChecked(false);
        select.findChild<QPushButton*>("bOk")->click();
        QCOMPARE(m_messages, QStringList{"There is not selected channel!"});
        QVERIFY(select.printView() == nullptr);
        // Only the recording's cameras are offered.
        PlaybackState::playChannelCount = 2;
        PrintChannelSelectView two;
        QVERIFY(two.findChild<QRadioButton*>("item2")->isEnabled());
        QVERIFY(!two.findChild<QRadioButton*>("item3")->isEnabled());
    }

    // Every line with its value, the speed in the chosen unit, the picture above the map.
    void pdfOfTheReport_data() {
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("speedLine");
        QTest::newRow("km/h") << 1 << "Speed: 42.5 Km/h";
        QTest::newRow("mi/h") << 2 << "Speed: 26.4 Mi/h";
    }
    void pdfOfTheReport() {
        QFETCH(int, unit);
        QFETCH(QString, speedLine);
        QTemporaryDir out;
        const QString pdf = savedReport(out.path(), unit, "Rear bumper, left side");
        QVERIFY(!pdf.isEmpty());
        QVERIFY2(m_messages.last().startsWith("The report is saved:"),
                 qPrintable(m_messages.last()));
        const QString text = pdfText(pdf).simplified();
        for (const QString& line :
             {QString("Report"), QString("FileName: 20240301_090000_INF_1.mp4"),
              QString("Date: 2024-03-01 09:01:05"), QString("Model Name: RAVEN1_A"),
              QString("GPS:37.12345 (N),127.54321 (E),"), speedLine,
              QString("G-Senor: X:0.125 Y:-0.250 Z:1.000"),
              QString("Memo: Rear bumper, left side")})
            QVERIFY2(text.contains(line), qPrintable(line + " not in: " + text));

        const QImage page = pdfPage(pdf, out.path());
        QVERIFY(!page.isNull());
        // The camera's picture across the page, the map under it on the left, beside the
        // text, down to the foot of the page; the text readable (about 10 pt, not 6).
        const QList<int> green = rowsOf(page, page.width() / 2, qRgb(0, 255, 0));
        const QList<int> blue = rowsOf(page, page.width() / 4, qRgb(0, 0, 255));
        const QList<int> red = rowsOf(page, page.width() / 2, qRgb(255, 0, 0));
        QVERIFY(red.isEmpty()); // camera 1 was not chosen
        QVERIFY2(green.size() > page.height() / 6, qPrintable(QString::number(green.size())));
        QVERIFY2(blue.size() > page.height() / 4, qPrintable(QString::number(blue.size())));
        QVERIFY(green.last() < blue.first());
        QVERIFY2(blue.last() > page.height() * 85 / 100, qPrintable(QString::number(blue.last())));
        QVERIFY(rowsOf(page, page.width() * 3 / 4, qRgb(0, 0, 255)).isEmpty());
        const double textHeight = pdfWordHeight(pdf, "FileName:");
        QVERIFY2(textHeight >= 9, qPrintable(QString::number(textHeight)));
        // The picture spans the page's width within its margins.
        const QRgb middle = page.pixel(page.width() / 10 + 2, green.at(green.size() / 2));
        QVERIFY(qGreen(middle) > 200 && qRed(middle) < 60);
    }

    void withoutTelemetryTheLabelsStay() {
        PlaybackState::telemetryPresent = false;
        PlaybackState::gpsPresent = false;
        QTemporaryDir out;
        const QString pdf = savedReport(out.path(), 1, QString());
        QVERIFY(!pdf.isEmpty());
        const QString text = pdfText(pdf).simplified();
        for (const char* line : {"FileName: 20240301_090000_INF_1.mp4", "GPS: (N), (E),",
                                 "Speed: Km/h", "G-Senor: X: Y: Z:", "Memo:"})
            QVERIFY2(text.contains(QLatin1String(line)),
                     qPrintable(QString(line) + " not in: " + text));
    }

    // The preview is the page: white, the camera's picture above the map.
    void previewShowsThePage() {
        PreviewPrint preview;
        preview.resize(400, 566);
        ReportScene scene = ReportScene::fromPlayback(QString(), 1);
        scene.sceneImage = filled(QColor(0, 255, 0), QSize(640, 360));
        preview.setSceneData(scene);
        preview.setMapData(filled(QColor(0, 0, 255), QSize(400, 300)));
        const QImage shot = preview.grab().toImage();
        const QList<int> green = rowsOf(shot, 200, qRgb(0, 255, 0));
        const QList<int> blue = rowsOf(shot, 100, qRgb(0, 0, 255));
        QVERIFY(!green.isEmpty() && !blue.isEmpty());
        QVERIFY(green.last() < blue.first());
        QCOMPARE(QColor(shot.pixel(200, 12)), QColor(Qt::white));
    }

    // Cancelling the system's print dialog prints nothing and keeps the report.
    void cancelledPrintKeepsTheReport() {
        PrintView report;
        ReportScene scene = ReportScene::fromPlayback(QString(), 1);
        scene.sceneImage = filled(Qt::green, QSize(64, 36));
        report.setScene(scene);
        report.show();
        bool seen = false;
        QTimer::singleShot(200, [&seen] {
            if (auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
                seen = true;
                dialog->reject();
            }
        });
        report.findChild<QPushButton*>("bPrint")->click();
        QVERIFY(seen);
        QVERIFY(report.isVisible());
        QCOMPARE(report.chosenCount(), 1);
    }
};

QTEST_MAIN(TestExport)
#include "test_export.moc"
