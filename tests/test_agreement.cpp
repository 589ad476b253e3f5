// The privacy agreement: which stored answers let the program run, and what the dialog stores.
#include "AgreementView.h"
#include "AppGlobals.h"
#include "MainWindow.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestAgreement : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.path();
        AppGlobals::settings = new QSettings(m_dir.filePath("settings.ini"), QSettings::IniFormat);
    }

    void storedAnswers_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<bool>("updates");
        QTest::addColumn<bool>("reports");
        QTest::newRow("0") << "0" << true << false << false;
        QTest::newRow("1") << "1" << true << false << false;
        QTest::newRow("3") << "3" << true << true << false;
        QTest::newRow("5") << "5" << true << false << true;
        QTest::newRow("7") << "7" << true << true << true;
        QTest::newRow("2 refused") << "2" << false << false << false;
        QTest::newRow("6") << "6" << false << false << false;
        QTest::newRow("empty") << "" << false << false << false;
        QTest::newRow("padded") << " 1" << false << false << false;
        QTest::newRow("text") << "yes" << false << false << false;
    }
    void storedAnswers() {
        QFETCH(QString, value);
        QFETCH(bool, accepted);
        QFETCH(bool, updates);
        QFETCH(bool, reports);
        AppGlobals::updateChecksAllowed = false;
        AppGlobals::autoCrashReports = false;
        QCOMPARE(MainWindow::acceptAgreementValue(value), accepted);
        QCOMPARE(AppGlobals::updateChecksAllowed, updates);
        QCOMPARE(AppGlobals::autoCrashReports, reports);
    }

    void dialogStoresTheChoiceOnAgree() {
        AgreementView dialog;
        auto* updates = dialog.findChild<QCheckBox*>("chkUpdate");
        auto* reports = dialog.findChild<QCheckBox*>("chkReport");
        auto* agree = dialog.findChild<QPushButton*>("bAgree");
        QVERIFY(updates && reports && agree);
        QVERIFY(updates->isChecked());
        QVERIFY(!reports->isChecked());
        QTest::mouseClick(reports, Qt::LeftButton, {}, QPoint(4, reports->height() / 2));
        QTest::mouseClick(updates, Qt::LeftButton, {}, QPoint(4, updates->height() / 2));
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.show();
        QTest::mouseClick(agree, Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 1);
        QCOMPARE(AppGlobals::settings->value("agreement").toString(), QString("5"));
        // What the dialog stored is what the next start accepts.
        QVERIFY(
            MainWindow::acceptAgreementValue(AppGlobals::settings->value("agreement").toString()));
        QVERIFY(AppGlobals::autoCrashReports);
        QVERIFY(!AppGlobals::updateChecksAllowed);
    }

    void declineStoresNothing() {
        AppGlobals::settings->remove("agreement");
        AgreementView dialog;
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.show();
        QTest::mouseClick(dialog.findChild<QPushButton*>("bDisagree"), Qt::LeftButton);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), 0);
        QVERIFY(!AppGlobals::settings->contains("agreement"));
    }
};

QTEST_MAIN(TestAgreement)
#include "test_agreement.moc"
