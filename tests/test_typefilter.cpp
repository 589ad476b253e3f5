// The type filter: the pop-up's toggles, the combo's face, and the mask reaching the list.
#include "AppGlobals.h"
#include "RecordingName.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavTypeButton.h"
#include "TavTypeList.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

namespace {

// Stands in for a language file: every text of the given context comes back marked.
class MarkingTranslator : public QTranslator {
public:
    explicit MarkingTranslator(const char* context) : m_context(context) {}
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* = nullptr,
                      int = -1) const override {
        return qstrcmp(context, m_context) == 0 ? QStringLiteral("<%1>").arg(source) : QString();
    }

private:
    const char* m_context;
};

} // namespace

class TestTypeFilter : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    // The letters of the combo's visible icons, left to right.
    static QStringList comboIcons(const TavFileComboBox& combo) {
        QStringList letters;
        for (int i = 1; i <= 4; ++i) {
            const auto* icon = combo.findChild<QLabel*>(QStringLiteral("fileType%1").arg(i));
            if (icon == nullptr || !icon->isVisibleTo(&combo))
                continue;
            // A label that does not show its type's icon is reported as such.
            const bool showsIcon =
                icon->styleSheet().contains(RecordingName::typeIconPath(icon->text()));
            letters << (showsIcon ? icon->text() : icon->text() + " without icon");
        }
        return letters;
    }

    static QString comboText(const TavFileComboBox& combo) {
        return combo.findChild<QLabel*>("textState")->text();
    }

private slots:
    void initTestCase() { AppGlobals::dataFolder = m_dir.path(); }

    void comboShowsTheChoice_data() {
        QTest::addColumn<int>("mask");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("icons");
        QTest::newRow("all") << 15 << "  All Type" << QStringList{};
        QTest::newRow("none") << 0 << "  Filter" << QStringList{};
        QTest::newRow("parking") << 4 << "  Filter" << QStringList{"P"};
        QTest::newRow("user and infinity") << 9 << "  Filter" << QStringList{"I", "U"};
        QTest::newRow("three") << 14 << "  Filter" << QStringList{"E", "P", "U"};
        QTest::newRow("high bits ignored") << 31 << "  All Type" << QStringList{};
    }
    void comboShowsTheChoice() {
        QFETCH(int, mask);
        QFETCH(QString, text);
        QFETCH(QStringList, icons);
        TavFileComboBox combo;
        QCOMPARE(combo.mask(), 15);
        QCOMPARE(comboText(combo), QString("  All Type"));
        // From a narrower choice first, so that icons left over would show.
        combo.onUpdateSetData(7);
        QSignalSpy filter(&combo, &TavFileComboBox::onSendFileTypeFilter);
        combo.onUpdateSetData(mask);
        QCOMPARE(comboText(combo), text);
        QCOMPARE(comboIcons(combo), icons);
        QCOMPARE(combo.textState(), text == "  All Type" ? 0 : 1);
        QCOMPARE(filter.count(), 1);
        QCOMPARE(filter.at(0).at(0).toInt(), mask & 15);
    }

    void popUpTogglesMakeTheMask() {
        TavTypeList list;
        QCOMPARE(list.mask(), 15);
        QVERIFY(!list.isVisible());
        QSignalSpy mask(&list, &TavTypeList::onSendCurrentType);
        QSignalSpy shown(&list, &TavTypeList::onSendTypeListSet);
        list.onControlTypeList();
        QVERIFY(list.isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        auto* park = list.findChild<TavTypeButton*>("park");
        auto* event = list.findChild<TavTypeButton*>("event");
        QVERIFY(park != nullptr && event != nullptr);
        QCOMPARE(park->text(), QString("Parking"));
        QTest::mouseClick(park, Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 11);
        QVERIFY(!park->isChecked());
        QTest::mouseClick(event, Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 9);
        for (const char* name : {"infinity", "user"})
            QTest::mouseClick(list.findChild<TavTypeButton*>(name), Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 0);
        QTest::mouseClick(park, Qt::LeftButton);
        QCOMPARE(mask.last().at(0).toInt(), 4);
        QCOMPARE(mask.count(), 5);

        list.onControlTypeList();
        QVERIFY(!list.isVisible());
        list.onHideTypeList(); // already closed: says nothing
        list.onControlTypeList();
        QTest::keyClick(&list, Qt::Key_Escape);
        QVERIFY(!list.isVisible());
        QCOMPARE(shown.count(), 4);
        QCOMPARE(shown.at(0).at(0).toInt(), 1);
        QCOMPARE(shown.at(1).at(0).toInt(), 0);
        QCOMPARE(shown.at(3).at(0).toInt(), 0);
    }

    void chosenTypesFilterTheList() {
        QStringList paths;
        for (const char* name :
             {"20240101_080000_INF_1.mp4", "20240101_080100_EVT_1.mp4", "20240101_080200_PRK_1.mp4",
              "20240101_080300_USR_1.mp4", "20240101_080400_ENF_1.mp4"}) {
            paths << m_dir.filePath(QLatin1String(name));
            QFile(paths.last()).open(QIODevice::WriteOnly);
        }
        // Rear cameras: the filter and its counts are about recordings, not files.
        QStringList rear;
        for (const char* name : {"20240101_080000_INF_2.mp4", "20240101_080000_INF_3.mp4",
                                 "20240101_080200_PRK_3.mp4"}) {
            rear << m_dir.filePath(QLatin1String(name));
            QFile(rear.last()).open(QIODevice::WriteOnly);
        }
        TavTypeList popUp;
        TavFileComboBox combo;
        TavFileListItem files;
        connect(&popUp, &TavTypeList::onSendCurrentType, &combo, &TavFileComboBox::onUpdateSetData);
        connect(&popUp, &TavTypeList::onSendTypeListSet, &combo,
                &TavFileComboBox::onUpdateListState);
        connect(&combo, &TavFileComboBox::onSendTypeListControl, &popUp,
                &TavTypeList::onControlTypeList);
        connect(&combo, &TavFileComboBox::onSendFileTypeFilter, &files,
                &TavFileListItem::onSortFile);
        connect(&files, &TavFileListItem::onSendRefreshFilter, &combo,
                &TavFileComboBox::onUpdateList);
        connect(&files, &TavFileListItem::onSendHideTypeList, &popUp, &TavTypeList::onHideTypeList);
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
        QTest::mouseClick(&combo, Qt::LeftButton, {}, QPoint(20, 10));
        QVERIFY(popUp.isListShown());
        QVERIFY(combo.findChild<QPushButton*>("bOpenList")->isChecked());

        files.loadPaths(rear + paths);
        QCOMPARE(files.rowCount(), 5);
        QCOMPARE(files.getCanPlayFileCount(), 5); // "All Type" shows even the unknown type
        popUp.toggle(4)->onClickedButton();
        QCOMPARE(files.typeMask(), 11);
        QCOMPARE(TavFileListItem::visibleRows, (QVector<int>{0, 1, 3}));
        QCOMPARE(comboText(combo), QString("  Filter"));
        QCOMPARE(comboIcons(combo), (QStringList{"I", "E", "U"}));
        // A new load keeps the choice.
        files.loadPaths({paths.at(0), paths.at(2)});
        QCOMPARE(TavFileListItem::visibleRows, QVector<int>{0});
        for (int bit : {1, 2, 8})
            popUp.toggle(bit)->onClickedButton();
        QCOMPARE(files.typeMask(), 0);
        QCOMPARE(files.getCanPlayFileCount(), 0);
        QVERIFY(files.isRowHidden(0) && files.isRowHidden(1));

        // A click in the list closes the pop-up.
        files.show();
        QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QVERIFY(!popUp.isListShown());
        QVERIFY(!combo.findChild<QPushButton*>("bOpenList")->isChecked());
    }

    void textsFollowTheLanguage() {
        TavFileComboBox combo;
        TavTypeList popUp;
        MarkingTranslator comboTexts("TavFileComboBox");
        MarkingTranslator popUpTexts("ui_tavTypeList");
        QCoreApplication::installTranslator(&comboTexts);
        QCoreApplication::installTranslator(&popUpTexts);
        combo.onChangeLanguage();
        popUp.onChangeLanguage();
        QCOMPARE(comboText(combo), QString("<  All Type>"));
        QCOMPARE(popUp.findChild<TavTypeButton*>("user")->text(), QString("<User>"));
        combo.onUpdateSetData(1);
        QCOMPARE(comboText(combo), QString("<  Filter>"));
        QCoreApplication::removeTranslator(&comboTexts);
        QCoreApplication::removeTranslator(&popUpTexts);
        combo.onChangeLanguage();
        QCOMPARE(comboText(combo), QString("  Filter"));
    }
};

QTEST_MAIN(TestTypeFilter)
#include "test_typefilter.moc"
