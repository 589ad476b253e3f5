// The one-page report: its values, the camera choice, the PDF read back with pdftotext and
// pdftoppm, the preview, and a cancelled print dialog.
#include "AppGlobals.h"
#include "PlayerInterface.h"
#include "PreviewPrint.h"
#include "PrintChannelSelectView.h"
#include "PrintView.h"
#include "ReportScene.h"
#include "TavPrompt.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace {

QImage filled(const QColor& colour, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QString pdfText(const QString& pdf) {
    QProcess pdftotext;
    pdftotext.start("pdftotext", {"-layout", pdf, "-"});
    pdftotext.waitForFinished(30000);
    return QString::fromUtf8(pdftotext.readAllStandardOutput());
}

QImage pdfPage(const QString& pdf, const QString& folder) {
    QProcess pdftoppm;
    pdftoppm.start("pdftoppm", {"-r", "48", "-png", "-singlefile", pdf, folder + "/page"});
    pdftoppm.waitForFinished(30000);
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

class TestReport : public QObject {
    Q_OBJECT
    QTemporaryDir m_data;
    QStringList m_messages;

    // A playing recording at 65 s of 100 s whose telemetry has 100 samples; sample 65 says
    // where the car is.
    void playRecording() {
        PlayerInterface::currentFile = "/cards/DCIM/20240301_090000_INF_1.mp4";
        PlayerInterface::playStatus = PlayerInterface::PlayPaused;
        PlayerInterface::playChannelCount = 3;
        PlayerInterface::currentTime = 65000;
        PlayerInterface::totalTime = 100000;
        PlayerInterface::telemetryPresent = true;
        PlayerInterface::gpsPresent = true;
        PlayerInterface::gpsList.clear();
        PlayerInterface::gSensorList.clear();
        for (int i = 0; i < 100; ++i) {
            PlayerInterface::gpsList << GpsPoint{
                i, 37.12345f + (i - 65) * 0.001f, 127.54321f, 20.0f + (i == 65 ? 22.5f : 0), 1, 1};
            PlayerInterface::gSensorList << GSensorPoint{i, i == 65 ? 0.125f : 0.0f, -0.25f, 1.0f};
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
        QSignalSpy finished(&select, &PrintChannelSelectView::finishedPrintView);
        report->findChild<QPushButton*>("bCancel")->click();
        // Closing the report closes the choice with the same result.
        if (finished.size() != 1 || finished.at(0).at(0).toInt() != QDialog::Rejected ||
            select.isVisible())
            return QString();
        return pdf;
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_data.path();
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
    }

    void init() {
        m_messages.clear();
        playRecording();
    }

    void valuesOfTheCurrentTime() {
        ReportScene scene = ReportScene::fromPlayback("RAVEN1_A", 1);
        QCOMPARE(scene.fileName, QStringLiteral("20240301_090000_INF_1.mp4"));
        QCOMPARE(scene.date, QStringLiteral("2024-03-01 09:01:05"));
        QCOMPARE(scene.latitude, QStringLiteral("37.12345"));
        QCOMPARE(scene.longitude, QStringLiteral("127.54321"));
        QCOMPARE(scene.speed, QStringLiteral("42.5"));
        QCOMPARE(scene.gSensorX, QStringLiteral("0.125"));
        QCOMPARE(scene.gSensorY, QStringLiteral("-0.250"));
        QCOMPARE(ReportScene::fromPlayback(QString(), 2).speed, QStringLiteral("26.4"));
        QCOMPARE(ReportScene::coordinateText(7.5), QStringLiteral("07.50000"));
        QCOMPARE(ReportScene::coordinateText(-3.25), QStringLiteral("-03.25000"));

        // No fix at this moment: no position, the G-sensor values stay.
        PlayerInterface::gpsList[65].latitude = 0;
        PlayerInterface::gpsList[65].longitude = 0;
        scene = ReportScene::fromPlayback(QString(), 1);
        QVERIFY(scene.latitude.isEmpty() && scene.speed.isEmpty());
        QCOMPARE(scene.gSensorZ, QStringLiteral("1.000"));
        // No telemetry at all, and a name without its time.
        PlayerInterface::telemetryPresent = false;
        PlayerInterface::currentFile = "/x/drive.mp4";
        scene = ReportScene::fromPlayback(QString(), 1);
        QVERIFY(scene.gSensorX.isEmpty() && scene.latitude.isEmpty() && scene.date.isEmpty());
    }

    void noCameraChosen() {
        PrintChannelSelectView select;
        auto* front = select.findChild<QRadioButton*>("item1");
        QVERIFY(front->isChecked());
        front->setAutoExclusive(false);
        front->setChecked(false);
        select.findChild<QPushButton*>("bOk")->click();
        QCOMPARE(m_messages, QStringList{"There is not selected channel!"});
        QVERIFY(select.printView() == nullptr);
        // Only the recording's cameras are offered.
        PlayerInterface::playChannelCount = 2;
        PrintChannelSelectView two;
        QVERIFY(two.findChild<QRadioButton*>("item2")->isEnabled());
        QVERIFY(!two.findChild<QRadioButton*>("item3")->isEnabled());
    }

    // Every line with its label and value, the speed in the chosen unit, the camera's
    // picture above the map.
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
        const QList<int> green = rowsOf(page, page.width() / 2, qRgb(0, 255, 0));
        const QList<int> blue = rowsOf(page, page.width() / 2, qRgb(0, 0, 255));
        const QList<int> red = rowsOf(page, page.width() / 2, qRgb(255, 0, 0));
        QVERIFY(red.isEmpty()); // camera 1 was not chosen
        QVERIFY2(green.size() > page.height() / 6, qPrintable(QString::number(green.size())));
        QVERIFY2(blue.size() > page.height() / 6, qPrintable(QString::number(blue.size())));
        QVERIFY(green.last() < blue.first());
        // The picture spans the page's width within its margins.
        const QRgb middle = page.pixel(page.width() / 10 + 2, green.at(green.size() / 2));
        QVERIFY(qGreen(middle) > 200 && qRed(middle) < 60);
    }

    void withoutTelemetryTheLabelsStay() {
        PlayerInterface::telemetryPresent = false;
        PlayerInterface::gpsPresent = false;
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
        const QList<int> blue = rowsOf(shot, 200, qRgb(0, 0, 255));
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

QTEST_MAIN(TestReport)
#include "test_report.moc"
