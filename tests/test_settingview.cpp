// The settings dialog on a card made here: descriptions, unsaved state, writing the card, the
// reset questions, and the program reset.
#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFixture.h"
#include "ConfigAccess.h"
#include "SettingOpt.h"
#include "SettingView.h"
#include "TavPrompt.h"

#include <QComboBox>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSettingView : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_card;
    QVector<QVector<int>> m_widths;
    QStringList m_messages;
    QStringList m_questions;
    bool m_answer = false;

    QString configPath() const { return ConfigAccess::configPath(m_card); }

    // The card's value of a setting, read from the file's bytes.
    int cardByte(const QString& name) {
        const QByteArray file = CardFixture::readFile(configPath());
        const QJsonObject model =
            QJsonDocument::fromJson(
                CardFixture::readFile(CardFixture::shippedJson("configStr.json")))
                .object()
                .value("RAVEN1_2CH")
                .toObject();
        const QStringList order = {"Camera", "Memory", "Sensitive", "System", "Battery Protection"};
        for (int g = 0; g < order.size(); ++g) {
            int position = 160 + 128 * g;
            for (const QJsonValue& item : model.value(order[g]).toArray()) {
                if (item.toObject().value("name").toString() == name)
                    return quint8(file[position]);
                position += item.toObject().value("type").toInt();
            }
        }
        return -1;
    }

    void choose(SettingView& view, const QString& name, int value) {
        SettingOpt* option = view.option(name);
        QVERIFY2(option != nullptr, qPrintable(name));
        option->setValue(value);
        emit option->onSendValueChanged(name, value);
    }

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.filePath("data");
        AppGlobals::settings = new QSettings(m_dir.filePath("settings.ini"), QSettings::IniFormat);
        CardFixture fixture(m_dir.path());
        m_card = fixture.addDrive("RAVEN", true, "RAVEN");
        fixture.install();
        m_widths = CardFixture::layout(CardFixture::shippedJson("configStr.json"), "RAVEN1_2CH");
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
        TavPrompt::askTitledHook = [this](const QString& title, const QString& text) {
            m_questions << title + ": " + text;
            return m_answer;
        };
        SettingView::restartHook = [](const QString&, const QStringList&) {};
    }

    void init() {
        m_messages.clear();
        m_questions.clear();
        m_answer = false;
        // Factory values throughout, but a bitrate of "High" (2) and Memory Allocation 0.
        QVector<QVector<qint64>> values = {
            {1, 1, 0, 2, 2, 1, 1, 1, 0}, {0, 1, 0}, {3, 3, 2}, {540, 0, 0, 3, 1}, {2, 1, 120, 3}};
        QVERIFY(CardFixture::writeFile(
            configPath(),
            CardFixture::configBin("RAVEN1_2CH", CardFixture::blocks(m_widths, values))));
        ConfigAccess::cardRoot = m_card;
        CardDrives::setValidatedRoot(m_card);
    }

    void shippedDescriptionsMatchTheConfigLayouts() {
        // Every setting is a config.bin item (or card text); its choices fit, with the factory one.
        const QJsonObject layouts =
            QJsonDocument::fromJson(
                CardFixture::readFile(CardFixture::shippedJson("configStr.json")))
                .object();
        const QJsonObject settings =
            QJsonDocument::fromJson(CardFixture::readFile(CardFixture::shippedJson("Setting.json")))
                .object();
        QCOMPARE(settings.keys(), layouts.keys());
        for (const QString& model : layouts.keys()) {
            QHash<QString, int> widths;
            for (const QJsonValue& group : layouts.value(model).toObject()) {
                int bytes = 0;
                for (const QJsonValue& item : group.toArray()) {
                    widths.insert(item.toObject().value("name").toString(),
                                  item.toObject().value("type").toInt());
                    bytes += item.toObject().value("type").toInt();
                }
                QVERIFY2(bytes <= 128, qPrintable(model));
            }
            for (const QJsonValue& tree : settings.value(model).toObject()) {
                const QJsonObject records = tree.toObject();
                for (const QString& name : records.keys()) {
                    const QJsonObject record = records.value(name).toObject();
                    const QString where = model + ": " + name;
                    if (record.value("type").toInt() == SettingOpt::CardTextKind) {
                        QVERIFY2(!SettingView::cardText(record.value("link").toString()).isNull() ||
                                     QStringList({"Identity", "Serial", "Model", "Version"})
                                         .contains(record.value("link").toString()),
                                 qPrintable(where));
                        continue;
                    }
                    QVERIFY2(widths.contains(name), qPrintable(where));
                    const int width = widths.value(name);
                    QList<int> values;
                    for (const QJsonValue& choice : record.value("item").toArray())
                        values << choice.toObject().value("value").toInt();
                    QVERIFY2(!values.isEmpty(), qPrintable(where));
                    for (int value : values)
                        QVERIFY2(width == 4 || (value >= 0 && value < (1 << (8 * width))),
                                 qPrintable(where));
                    if (record.contains("initial"))
                        QVERIFY2(values.contains(record.value("initial").toInt()),
                                 qPrintable(where));
                    const QString link = record.value("link").toString();
                    QVERIFY2(link.isEmpty() || widths.contains(link), qPrintable(where));
                }
            }
        }
    }

    void showsTheCardAndTracksUnsavedChanges() {
        SettingView view;
        for (const char* tree : {"Camera", "Battery Protection", "Memory", "Sensitive", "System"})
            QVERIFY2(view.treePage(tree) != nullptr, tree);
        QCOMPARE(view.option("Video Bitrate")->value(), 2);
        QCOMPARE(view.option("Model Name")->findChild<QLabel*>() != nullptr, true);
        QVERIFY(view.stateLabel()->text().isEmpty());
        choose(view, "Video Bitrate", 0);
        QCOMPARE(view.stateLabel()->text(), QString("There are unsaved settings."));
        choose(view, "Video Bitrate", 2);
        QVERIFY(view.stateLabel()->text().isEmpty());
        // A setting that depends on another follows it.
        QVERIFY(view.option("Cut-off Voltage")->findChild<QComboBox*>()->isEnabled());
        choose(view, "Low Voltage Cut-off", 0);
        QVERIFY(!view.option("Cut-off Voltage")->findChild<QComboBox*>()->isEnabled());
    }

    void applyAndOkWriteTheCard() {
        SettingView view;
        choose(view, "Speed Unit", 1);
        QCOMPARE(cardByte("Speed Unit"), 0);
        view.onClickApply();
        QCOMPARE(cardByte("Speed Unit"), 1);
        QVERIFY(m_messages.isEmpty());
        view.show();
        choose(view, "Volume", 5);
        view.onClickOk();
        QCOMPARE(cardByte("Volume"), 5);
        QVERIFY(!view.isVisible());
        QCOMPARE(ConfigAccess().readConfig(QDir(m_card)), 0);
    }

    void deviceResetAsksTheRightQuestion() {
        {
            // Bitrate back at its factory value, the memory's layout changed: a format.
            SettingView view;
            choose(view, "Video Bitrate", 1);
            choose(view, "Memory Allocation", 2);
            view.onDeviceSetInit();
            QCOMPARE(m_questions.size(), 1);
            QCOMPARE(m_questions[0], QString("Device Reset: The memory will be formatted to return "
                                             "some settings to defaults.\nIt can't go back if you "
                                             "clicked yes."));
        }
        {
            // Both as the factory left them: only the settings return.
            m_questions.clear();
            SettingView view;
            choose(view, "Video Bitrate", 1);
            choose(view, "Volume", 0);
            m_answer = true;
            view.onDeviceSetInit();
            QCOMPARE(m_questions, QStringList{"Device Reset: Would you like to return your device "
                                              "to factory settings?\nIt can't go back if you "
                                              "clicked yes."});
            QCOMPARE(m_messages, QStringList{"Complete!"});
            QVERIFY(view.isEnabled());
            QCOMPARE(cardByte("Volume"), 3);
            QCOMPARE(cardByte("Exposure"), 2);
            QCOMPARE(view.option("Volume")->value(), 3);
        }
    }

    void fileFormatIsAskedFirst() {
        SettingView view;
        choose(view, "Exposure", 4);
        view.onFileFormat();
        QCOMPARE(m_questions, QStringList{"File Format: Do you Really want to file format?\nIt "
                                          "can't go back if you clicked yes."});
        QCOMPARE(cardByte("Exposure"), 2); // No: nothing written
    }

    void programReset_data() {
        QTest::addColumn<bool>("card");
        QTest::newRow("card present") << true;
        QTest::newRow("no card") << false;
    }

    void programReset() {
        QFETCH(bool, card);
        QSettings& settings = *AppGlobals::settings;
        const QStringList keys = {"width",     "height",  "geoX",      "geoY",
                                  "language",  "volume",  "mute",      "snapshotPath",
                                  "videoPath", "version", "agreement", "id"};
        for (const QString& key : keys)
            settings.setValue(key, "1");
        QStringList restarted;
        SettingView::restartHook = [&restarted](const QString& program, const QStringList& args) {
            restarted << program << args;
        };
        SettingView view;
        QSignalSpy notSaved(&view, &SettingView::onSendNotSaveSetting);
        if (!card)
            ConfigAccess::cardRoot = m_dir.filePath("no-card");
        m_answer = true;
        view.onSetProgramFormat();
        if (!card) {
            QCOMPARE(m_messages, QStringList{"SD is not exist!"});
            QCOMPARE(settings.allKeys().size(), keys.size());
            QVERIFY(restarted.isEmpty());
            return;
        }
        QCOMPARE(m_questions, QStringList{"Program Reset: Program will be quit."});
        QStringList left = settings.allKeys();
        left.sort();
        QCOMPARE(left, (QStringList{"geoX", "geoY", "id"}));
        QCOMPARE(notSaved.count(), 1);
        QCOMPARE(restarted, QStringList{QCoreApplication::applicationFilePath()});
        SettingView::restartHook = [](const QString&, const QStringList&) {};
    }

    void olderD21FirmwareOnlyShowsBatteryProtection() {
        const auto widths =
            CardFixture::layout(CardFixture::shippedJson("configStr.json"), "HERON07_D21");
        for (int build : {114, 115}) {
            QVector<QVector<qint64>> values(5);
            values[3] = QVector<qint64>(24, 0);
            values[3][23] = build;
            values[4] = {2, 1, 120, 3};
            CardFixture::writeFile(
                configPath(),
                CardFixture::configBin("HERON07_D21", CardFixture::blocks(widths, values)));
            SettingView view;
            QCOMPARE(ConfigAccess::specialValue, build);
            QCOMPARE(view.option("Parking Mode")->findChild<QComboBox*>()->isEnabled(),
                     build >= 115);
            QVERIFY(view.option("Video Bitrate")->isEnabled());
        }
    }
};

QTEST_MAIN(TestSettingView)
#include "test_settingview.moc"
