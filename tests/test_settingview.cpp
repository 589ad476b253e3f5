// The camera's config.bin on a card made here, every shipped model read and written byte for
// byte, bad files, and failed writes that must keep the card's bytes; and the settings dialog:
// unsaved state, writing the card, the reset questions, and the program reset.
#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFixture.h"
#include "ConfigAccess.h"
#include "ConfigFileWriter.h"
#include "ConfigImage.h"
#include "JsonToConfig.h"
#include "SettingOpt.h"
#include "SettingView.h"
#include "TavPrompt.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
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
    QString m_fixedDisk;
    QStringList m_messages;
    QStringList m_questions;
    bool m_answer = false;

    QString configPath() const { return ConfigAccess::configPath(m_card); }

    // A description for layouts no shipped camera has.
    void useDescription(const QByteArray& json) {
        const QString path = m_dir.filePath("configStr.json");
        CardFixture::writeFile(path, json);
        JsonToConfig::descriptionPath = path;
    }

    qint32 read() {
        ConfigAccess access;
        return access.readConfig(QDir(m_card));
    }

    static QJsonObject shipped(const QString& json) {
        return QJsonDocument::fromJson(CardFixture::readFile(CardFixture::shippedJson(json)))
            .object();
    }

    // The card's value of a setting, read from the file's bytes.
    int cardByte(const QString& name) {
        const QByteArray file = CardFixture::readFile(configPath());
        const QJsonObject model = shipped("configStr.json").value("RAVEN1_2CH").toObject();
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
        QDir().mkpath(AppGlobals::dataFolder);
        AppGlobals::settings = new QSettings(m_dir.filePath("settings.ini"), QSettings::IniFormat);
        CardFixture fixture(m_dir.path());
        m_card = fixture.addDrive("RAVEN", true, "RAVEN");
        m_fixedDisk = fixture.addDrive("DISK", false);
        fixture.install();
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
        JsonToConfig::descriptionPath.clear();
        ConfigFileWriter::afterReplaceHook = nullptr;
        QFile::setPermissions(configPath(), QFile::ReadOwner | QFile::WriteOwner);
        // Factory values throughout, but a bitrate of "High" (2) and Memory Allocation 0.
        QVector<QVector<qint64>> values = {
            {1, 1, 0, 2, 2, 1, 1, 1, 0}, {0, 1, 0}, {3, 3, 2}, {540, 0, 0, 3, 1}, {2, 1, 120, 3}};
        QVERIFY(CardFixture::writeFile(configPath(),
                                       CardFixture::shippedConfigBin("RAVEN1_2CH", values)));
        ConfigAccess::cardRoot = m_card;
        CardDrives::setValidatedRoot(m_card);
    }

    // ---- config.bin ----

    void everyShippedModelRoundTrips_data() {
        QTest::addColumn<QString>("model");
        for (const char* model : {"RAVEN1_2CH", "RAVEN2_3CH", "HERON07_D21", "OSPREY_1CH"})
            QTest::newRow(model) << model;
    }

    void everyShippedModelRoundTrips() {
        QFETCH(QString, model);
        const auto widths = CardFixture::layout(CardFixture::shippedJson("configStr.json"), model);
        QVERIFY(!widths.isEmpty());
        // Values that use every byte of their width, different in each item.
        QVector<QVector<qint64>> values;
        QVector<QVector<qint64>> changed;
        for (int g = 0; g < widths.size(); ++g) {
            QVector<qint64> group;
            for (int i = 0; i < widths[g].size(); ++i) {
                const int width = widths[g][i];
                group << (width == 1 ? 200 - i : width == 2 ? 0xABCD - i : -123456 - i);
            }
            values << group;
            QVector<qint64> other = group;
            for (qint64& value : other)
                value = value == 200 ? 3 : value - 1;
            changed << other;
        }
        const QByteArray tail("tail the camera keeps");
        const QByteArray original =
            CardFixture::configBin(model, CardFixture::blocks(widths, values)) + tail;
        QVERIFY(CardFixture::writeFile(configPath(), original));
        QCOMPARE(read(), 0);
        QCOMPARE(ConfigAccess::modelText, model);
        QCOMPARE(ConfigAccess::identitySuffix, QString("1234"));
        QCOMPARE(ConfigAccess::versionText, QString("1.02.07"));
        QCOMPARE(ConfigAccess::groups.size(), widths.size());
        for (int g = 0; g < widths.size(); ++g) {
            for (int i = 0; i < widths[g].size(); ++i) {
                QCOMPARE(qint64(ConfigAccess::groups[g].items[i].value), values[g][i]);
                ConfigAccess::groups[g].items[i].value = double(changed[g][i]);
            }
        }

        ConfigAccess access;
        QVERIFY(access.writeMemory());
        // The header (its opaque blocks too) and whatever follows the check byte stay.
        QCOMPARE(CardFixture::readFile(configPath()),
                 CardFixture::configBin(model, CardFixture::blocks(widths, changed)) + tail);
        QVERIFY(m_messages.isEmpty());
    }

    void checkByteCoversFromOffset64() {
        useDescription(R"({"M1_TEST": {"G": [{"name": "a", "type": 1}, {"name": "b", "type": 2}]},
                           "EMPTY_M": {}})");
        // A model without groups is the header and the check byte.
        QVERIFY(CardFixture::writeFile(configPath(), CardFixture::configBin("EMPTY_M", {})));
        QCOMPARE(read(), 0);
        const QByteArray good = CardFixture::configBin("M1_TEST", {QByteArray("\x05\x34\x12", 3)});
        QVERIFY(CardFixture::writeFile(configPath(), good));
        QCOMPARE(read(), 0);
        QCOMPARE(ConfigAccess::groups[0].items[1].value, double(0x1234));
        // The identity blocks are outside the check; every later byte is inside.
        for (int offset : {0, 31, 40, 63}) {
            QByteArray bytes = good;
            bytes[offset] = char(bytes[offset] ^ 0x5A);
            QVERIFY(CardFixture::writeFile(configPath(), bytes));
            QVERIFY2(read() == 0, qPrintable(QString::number(offset)));
        }
        for (int offset : {100, 159, 160, 200, 288}) {
            QByteArray bytes = good;
            bytes[offset] = char(bytes[offset] ^ 0x01);
            QVERIFY(CardFixture::writeFile(configPath(), bytes));
            QVERIFY2(read() == ConfigAccess::ChecksumWrong, qPrintable(QString::number(offset)));
        }
    }

    void widthsOneTwoFourAndThree() {
        useDescription(R"({"W_TEST": {"G": [{"name": "one", "type": 1}, {"name": "two", "type": 2},
            {"name": "four", "type": 4}, {"name": "three", "type": 3}, {"name": "last", "type": 1}]}})");
        QVERIFY(
            CardFixture::writeFile(configPath(), CardFixture::configBin("W_TEST", {QByteArray()})));
        QCOMPARE(read(), 0);
        auto& items = ConfigAccess::groups[0].items;
        items[0].value = -1;       // stored as 0xFF
        items[1].value = 65535.9;  // cut toward zero
        items[2].value = -1;       // 0xFFFFFFFF
        items[3].value = 0x123456; // written although never read
        items[4].value = 2.9;
        ConfigAccess access;
        QVERIFY(access.writeMemory());
        const QByteArray block = CardFixture::readFile(configPath()).mid(160, 12);
        QCOMPARE(block, QByteArray("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x56\x34\x12\x02\x00", 12));
        QCOMPARE(read(), 0);
        const auto& reread = ConfigAccess::groups[0].items; // a new list since the read
        QCOMPARE(reread[0].value, 255.0);
        QCOMPARE(reread[1].value, 65535.0);
        QCOMPARE(reread[2].value, -1.0);
        QCOMPARE(reread[3].value, 0.0); // skipped by the reader: the model's fresh 0 stays
        QCOMPARE(reread[4].value, 2.0); // read from the right place after the skipped item
    }

    // A missing or unreadable file: test_sdcard's openFailuresSayWhy.
    void badFilesAndUnknownModels() {
        const QByteArray good = CardFixture::shippedConfigBin("RAVEN1_2CH", {{7}});
        QVERIFY(CardFixture::writeFile(configPath(), good.left(300)));
        QCOMPARE(read(), ConfigAccess::ChecksumWrong);
        QVERIFY(CardFixture::writeFile(configPath(), good.left(20)));
        QCOMPARE(read(), ConfigAccess::ModelUnknown);

        // Only the whole model text selects a model, not its tag.
        for (const char* model : {"RAVEN1_", "RAVEN1_2CH_X", "NOSUCH_1"}) {
            ConfigAccess::cardRoot = m_card;
            QVERIFY(CardFixture::writeFile(configPath(), CardFixture::configBin(model, {})));
            QVERIFY2(read() == ConfigAccess::ModelUnknown, model);
            QVERIFY(ConfigAccess::modelText.isEmpty());
            QVERIFY(ConfigAccess::identityText.isEmpty());
            QVERIFY(ConfigAccess::cardRoot.isEmpty());
        }

        // An unreadable description is said, and no model is known.
        useDescription("{ not json");
        QVERIFY(CardFixture::writeFile(configPath(), good));
        QCOMPARE(read(), ConfigAccess::ModelUnknown);
        QCOMPARE(m_messages, QStringList{"This model is not support!"});
    }

    void failedWritesKeepThePreviousBytes_data() {
        QTest::addColumn<QString>("failure");
        QTest::newRow("read-only file") << "read-only";
        QTest::newRow("file vanishes after the rename") << "vanish";
        QTest::newRow("card keeps other bytes") << "garbled";
        QTest::newRow("card not the opened one") << "not opened";
        QTest::newRow("home folder as card") << "home";
        QTest::newRow("fixed disk as card") << "fixed disk";
    }

    void failedWritesKeepThePreviousBytes() {
        QFETCH(QString, failure);
        const QByteArray original =
            CardFixture::shippedConfigBin("OSPREY_1CH", {{1, 1, 1, 1}, {1, 1}, {3}, {540, 1, 3}});
        const QString root = failure == "fixed disk" ? m_fixedDisk : m_card;
        const QString path = ConfigAccess::configPath(root);
        QVERIFY(CardFixture::writeFile(path, original));
        ConfigAccess access;
        QCOMPARE(access.readConfig(QDir(root)), 0);
        ConfigAccess::groups[0].items[1].value = 2;
        ConfigAccess::cardRoot = root;
        CardDrives::setValidatedRoot(root);
        const QByteArray home = qgetenv("HOME");

        if (failure == "read-only")
            QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup));
        if (failure == "vanish")
            ConfigFileWriter::afterReplaceHook = [](const QString& path) { QFile::remove(path); };
        if (failure == "garbled")
            ConfigFileWriter::afterReplaceHook = [](const QString& path) {
                CardFixture::writeFile(path, QByteArray(40, 'x'));
            };
        if (failure == "not opened")
            CardDrives::setValidatedRoot(m_dir.filePath("OTHER"));
        if (failure == "home")
            qputenv("HOME", root.toLocal8Bit()); // a card mounted as someone's home
        const bool written = access.writeMemory();
        qputenv("HOME", home);
        QVERIFY(!written);
        QCOMPARE(CardFixture::readFile(path), original);
        QCOMPARE(m_messages.size(), 1);
        // No file is left beside it.
        QCOMPARE(QDir(root + "/CONFIG").entryList(QDir::Files | QDir::Hidden),
                 QStringList{"config.bin"});
    }

    // ---- The settings dialog ----

    void shippedDescriptionsMatchTheConfigLayouts() {
        // Every setting is a config.bin item (or card text); its choices fit, with the factory one.
        const QJsonObject layouts = shipped("configStr.json");
        const QJsonObject settings = shipped("Setting.json");
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
        QCOMPARE(view.option("Video Bitrate")->value(), 2);
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
        view.show();
        choose(view, "Speed Unit", 1);
        QCOMPARE(cardByte("Speed Unit"), 0);
        QCOMPARE(view.stateLabel()->text(), QString("There are unsaved settings."));
        QTest::mouseClick(view.findChild<QPushButton*>("bApply"), Qt::LeftButton);
        QCOMPARE(cardByte("Speed Unit"), 1);
        QVERIFY(m_messages.isEmpty());
        QVERIFY(view.stateLabel()->text().isEmpty()); // the card holds it now
        choose(view, "Speed Unit", 0);
        QCOMPARE(view.stateLabel()->text(), QString("There are unsaved settings."));
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
        for (int build : {114, 115}) {
            QVector<QVector<qint64>> values(5);
            values[3] = QVector<qint64>(24, 0);
            values[3][23] = build;
            values[4] = {2, 1, 120, 3};
            CardFixture::writeFile(configPath(),
                                   CardFixture::shippedConfigBin("HERON07_D21", values));
            SettingView view;
            QCOMPARE(view.option("Parking Mode")->findChild<QComboBox*>()->isEnabled(),
                     build >= 115);
            QVERIFY(view.option("Video Bitrate")->isEnabled());
        }
    }
};

QTEST_MAIN(TestSettingView)
#include "test_settingview.moc"
