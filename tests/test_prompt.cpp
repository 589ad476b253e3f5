// The program's messages, questions and folder dialog: answers, and the program's dark look.
#include "TavPrompt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <functional>

namespace {

// Runs check on the modal dialog once it is up; check ends the dialog. A check that fails
// half way leaves it open, so it is closed here then, and the test reports the failure.
void whenModal(const std::function<void(QWidget*)>& check) {
    QTimer::singleShot(0, [check] {
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        QWidget* dialog = QApplication::activeModalWidget();
        QTRY_VERIFY(dialog->isVisible());
        check(dialog);
        if (QApplication::activeModalWidget() == dialog)
            QMetaObject::invokeMethod(dialog, "reject", Qt::QueuedConnection);
    });
}

// The average brightness (0-255) of a widget as drawn.
int brightness(QWidget* widget) {
    const QImage image = widget->grab().toImage();
    long long sum = 0;
    int count = 0;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3) {
            sum += qGray(image.pixel(x, y));
            ++count;
        }
    }
    return count > 0 ? int(sum / count) : 255;
}

} // namespace

class TestPrompt : public QObject {
    Q_OBJECT

    QWidget m_window;

private slots:
    void initTestCase() {
        // The views that ask have style sheets of their own, as the file list does; a dialog
        // under such a parent must still take the program's look.
        m_window.setStyleSheet(QStringLiteral("QTableWidget{background: #1f232b; color: "
                                              "#c9ced8; border: none;}"));
        m_window.resize(600, 400);
        m_window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_window));
        QVERIFY(!TavPrompt::styleSheet().isEmpty());
    }

    void messageShowsItsTextInTheDarkLook() {
        QString text;
        int light = -1;
        whenModal([&](QWidget* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(box);
            text = box->text();
            light = brightness(box);
            QVERIFY(box->button(QMessageBox::Ok));
            // The button itself is dark too, and carries no picture.
            QVERIFY(brightness(box->button(QMessageBox::Ok)) < 100);
            QVERIFY(box->button(QMessageBox::Ok)->icon().isNull());
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        });
        TavPrompt::inform(&m_window, QStringLiteral("Item is exist!"));
        QCOMPARE(text, QStringLiteral("Item is exist!"));
        QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));
    }

    void questionAnswersYesOnlyForYes() {
        struct Case {
            QMessageBox::StandardButton press;
            bool expected;
        };
        for (const Case& answer : {Case{QMessageBox::Yes, true}, Case{QMessageBox::No, false}}) {
            QString title;
            int light = -1;
            whenModal([&](QWidget* dialog) {
                auto* box = qobject_cast<QMessageBox*>(dialog);
                QVERIFY(box);
                title = box->windowTitle();
                light = brightness(box);
                QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
                QTest::mouseClick(box->button(answer.press), Qt::LeftButton);
            });
            QCOMPARE(TavPrompt::ask(&m_window, QStringLiteral("Delete?")), answer.expected);
            QCOMPARE(title, QStringLiteral("Warning"));
            QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));
        }
        // Escape is not a yes.
        whenModal([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        QVERIFY(!TavPrompt::ask(&m_window, QStringLiteral("Delete?")));
    }

    void folderDialogIsDarkAndCancelGivesNothing() {
        int light = -1;
        whenModal([&](QWidget* dialog) {
            QVERIFY(qobject_cast<QFileDialog*>(dialog));
            light = brightness(dialog);
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QCOMPARE(TavPrompt::openFolder(&m_window, QStringLiteral("Open Folder")), QString());
        QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));
    }
};

QTEST_MAIN(TestPrompt)
#include "test_prompt.moc"
