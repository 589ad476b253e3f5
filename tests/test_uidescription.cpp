// Views built from description files (what the reader makes of each key, what applying a record
// does to a real widget), and the program's messages, questions and folder dialog: answers, and
// the program's dark look.
#include "TavPrompt.h"
#include "UiApplier.h"
#include "UiDescription.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>
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

class TestUiDescription : public QObject {
    Q_OBJECT

    QString m_view;
    QString m_file;
    QWidget m_window;

    void writeView(const QByteArray& json) {
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(json);
    }

private slots:
    void initTestCase() {
        // Test views live beside the real ones under a name no view uses.
        m_view = QStringLiteral("TestView%1").arg(QCoreApplication::applicationPid());
        m_file = UiDescription().jsonFolder() + m_view + ".json";
        // A dialog under a parent with its own style sheet still takes the program's look.
        m_window.setStyleSheet(QStringLiteral("QTableWidget{background: #1f232b; color: "
                                              "#c9ced8; border: none;}"));
        m_window.resize(600, 400);
        m_window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_window));
        QVERIFY(!TavPrompt::styleSheet().isEmpty());
    }

    void cleanupTestCase() { QFile::remove(m_file); }

    void missingOrBrokenFileHidesEveryChild() {
        UiDescription ui;
        QVERIFY(!ui.open("NoSuchView"));
        QCOMPARE(ui.item("centralWidget").status, -1);

        writeView("{ \"a\": { \"show\": true, ");
        QVERIFY(!ui.open(m_view));
        QCOMPARE(ui.item("a").status, -1);

        writeView("[1, 2, 3]");
        QVERIFY(!ui.open(m_view));

        QWidget widget;
        widget.show();
        QVERIFY(!UiApplier::apply(&widget, "a", ui.item("a"), QString()));
        QVERIFY(widget.isHidden());
        QVERIFY(!widget.isEnabled());
    }

    void absentKeysKeepTheirDefaults() {
        writeView(
            R"({"bare": {}, "wrongTypes": {"position": {"x": "10"}, "show": 1, "size": [1]}})");
        UiDescription ui;
        QVERIFY(ui.open(m_view));
        for (const char* name : {"bare", "wrongTypes"}) {
            const UiItem item = ui.item(name);
            QCOMPARE(item.status, 0);
            QVERIFY(!item.show && !item.enable && item.x == 0);
            QVERIFY(!item.size.isValid() && !item.maximum.isValid());
            QCOMPARE(item.scaleHeight, 3);
            QCOMPARE(item.textColor[UiItem::Hover], QString("#000000"));
            QVERIFY(item.color[UiItem::Default].isEmpty());
            QCOMPARE(item.image[UiItem::Disable], QString("none"));
        }
        QCOMPARE(ui.item("missing").status, -1);
    }

    void everyKeyIsRead() {
        writeView(
            R"({"panel": {"position": {"x": 12, "y": 34}, "size": {"width": 200, "height": 100},
            "minimum": {"width": 50, "height": 40}, "maximum": {"width": -1, "height": -1},
            "margin": {"left": 1, "top": 2, "right": 3, "bottom": 4},
            "scale": {"x": "Movable", "y": "Minimum", "width": "Stretch", "height": "Fixed"},
            "font": {"family": "Noto Sans", "weight": "Bold", "size": 13},
            "color": {"Default": "gray", "Hover": "silver"}, "textColor": {"Select": "white"},
            "image": {"Default": "panel.svg"}, "border": {"Disable": "black"},
            "show": true, "enable": true, "text": "Open folder"},
          "oddWeight": {"font": {"weight": "Heavy", "size": 0}},
          "halfMaximum": {"maximum": {"width": -1}}})");
        UiDescription ui;
        QVERIFY(ui.open(m_view));
        const UiItem item = ui.item("panel");
        QCOMPARE(QRect(item.x, item.y, item.size.width(), item.size.height()),
                 QRect(12, 34, 200, 100));
        QCOMPARE(item.minimum, QSize(50, 40));
        QCOMPARE(item.maximum, QSize(7680, 4320)); // -1: as large as a screen gets
        QCOMPARE(QMargins(item.marginLeft, item.marginTop, item.marginRight, item.marginBottom),
                 QMargins(1, 2, 3, 4));
        QCOMPARE((QList<int>{item.scaleX, item.scaleY, item.scaleWidth, item.scaleHeight}),
                 (QList<int>{4, 1, -1, 0}));
        QCOMPARE(item.font.family(), QString("Noto Sans"));
        QCOMPARE(item.font.weight(), 75);
        QCOMPARE(item.font.pixelSize(), 13);
        QCOMPARE((QStringList{item.color[UiItem::Default], item.color[UiItem::Hover],
                              item.color[UiItem::Select], item.textColor[UiItem::Select],
                              item.image[UiItem::Default], item.border[UiItem::Disable]}),
                 (QStringList{"gray", "silver", "", "white", "panel.svg", "black"}));
        QVERIFY(item.show && item.enable);
        QCOMPARE(item.text, QString("Open folder"));
        const UiItem odd = ui.item("oddWeight");
        QCOMPARE(odd.font.weight(), QFont().weight());
        QCOMPARE(odd.font.pixelSize(), QFont().pixelSize());
        QCOMPARE(ui.item("halfMaximum").maximum, QSize(7680, -1));
    }

    void applyingPlacesShowsAndStyles() {
        writeView(R"({"shown": {"position": {"x": 5, "y": 6}, "size": {"width": 70, "height": 30},
                      "margin": {"left": 2, "top": 2, "right": 2, "bottom": 2},
                      "image": {"Default": "a.svg", "Hover": "b.svg"},
                      "color": {"Default": "navy"}, "show": true, "enable": true},
            "disabledButShown": {"show": true, "enable": false},
            "enabledButHidden": {"show": false, "enable": true}})");
        UiDescription ui;
        QVERIFY(ui.open(m_view));
        QWidget parent;
        parent.resize(300, 200);
        auto* shown = new QPushButton(&parent);
        auto* disabled = new QWidget(&parent);
        auto* hidden = new QWidget(&parent);
        parent.show();

        const UiItem item = ui.item("shown");
        QVERIFY(UiApplier::apply(shown, "shown", item,
                                 UiApplier::buttonStyleSheet(item, ui.imageFolder())));
        QCOMPARE(shown->objectName(), QString("shown"));
        QCOMPARE(shown->geometry(), QRect(5, 6, 70, 30));
        QCOMPARE(shown->contentsMargins(), QMargins(2, 2, 2, 2));
        QVERIFY(shown->isVisible());
        const QString style = shown->styleSheet();
        QVERIFY2(style.contains("QPushButton{border: none; border-image: url(\"" +
                                ui.imageFolder() + "a.svg\")"),
                 qPrintable(style));
        QVERIFY(style.contains("QPushButton:hover{border-image: url(\"" + ui.imageFolder() +
                               "b.svg\")"));
        QVERIFY(style.contains("background: navy"));

        QVERIFY(!UiApplier::apply(disabled, "disabledButShown", ui.item("disabledButShown"),
                                  QString()));
        QVERIFY(disabled->isHidden() && !disabled->isEnabled());
        QVERIFY(
            UiApplier::apply(hidden, "enabledButHidden", ui.item("enabledButHidden"), QString()));
        QVERIFY(hidden->isHidden() && hidden->isEnabled());
    }

    void textsPassThroughTheViewsTranslation() {
        // The real Korean translation of the agreement dialog, as built into Resources.
        QTranslator korean;
        QVERIFY(korean.load(QCoreApplication::applicationDirPath() +
                            "/Resources/translation/trans_ko.qm"));
        UiDescription ui;
        QVERIFY(ui.open("AgreementView"));
        QCOMPARE(ui.translatedText("bAgree"), QString("Agree"));
        QCoreApplication::installTranslator(&korean);
        QCOMPARE(ui.translatedText("bAgree"), QString::fromUtf8("동의"));
        QCoreApplication::removeTranslator(&korean);
        QVERIFY(ui.translatedText("noSuchChild").isEmpty());
    }

    // ---- Messages and questions ----

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

    // Yes is the only yes: No, and Escape, are not; No is the default.
    void questionAnswersYesOnlyForYes() {
        for (int press : {int(QMessageBox::Yes), int(QMessageBox::No), 0}) {
            QString title;
            int light = -1;
            whenModal([&](QWidget* dialog) {
                auto* box = qobject_cast<QMessageBox*>(dialog);
                QVERIFY(box && box->defaultButton() == box->button(QMessageBox::No));
                title = box->windowTitle();
                light = brightness(box);
                if (press == 0)
                    QTest::keyClick(dialog, Qt::Key_Escape);
                else
                    QTest::mouseClick(box->button(QMessageBox::StandardButton(press)),
                                      Qt::LeftButton);
            });
            QCOMPARE(TavPrompt::ask(&m_window, QStringLiteral("Delete?")),
                     press == QMessageBox::Yes);
            QCOMPARE(title, QStringLiteral("Warning"));
            QVERIFY2(light >= 0 && light < 80, qPrintable(QString::number(light)));
        }
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

QTEST_MAIN(TestUiDescription)
#include "test_uidescription.moc"
