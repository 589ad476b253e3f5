// The camera's config.bin: every shipped model read and written byte for byte, bad files, and
// failed writes that must keep the card's previous bytes.
#include "AppGlobals.h"
#include "CardDrives.h"
#include "CardFixture.h"
#include "ConfigAccess.h"
#include "ConfigFileWriter.h"
#include "ConfigImage.h"
#include "JsonToConfig.h"
#include "TavPrompt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestConfigAccess : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_card;
    QString m_fixedDisk;
    QStringList m_messages;

    QString configPath() const { return m_card + "/CONFIG/config.bin"; }

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

private slots:
    void initTestCase() {
        AppGlobals::dataFolder = m_dir.filePath("data");
        QDir().mkpath(AppGlobals::dataFolder);
        CardFixture fixture(m_dir.path());
        m_card = fixture.addDrive("CARD", true, "CARD");
        m_fixedDisk = fixture.addDrive("DISK", false);
        fixture.install();
        TavPrompt::informHook = [this](const QString& text) { m_messages << text; };
    }

    void init() {
        m_messages.clear();
        JsonToConfig::descriptionPath.clear();
        CardDrives::setValidatedRoot(m_card);
        ConfigAccess::cardRoot = m_card;
        ConfigFileWriter::afterReplaceHook = nullptr;
        QFile::setPermissions(configPath(), QFile::ReadOwner | QFile::WriteOwner);
    }

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
        if (model.contains("D21"))
            QCOMPARE(ConfigAccess::specialValue, int(values[3][23]));

        ConfigAccess access;
        QVERIFY(access.writeMemory());
        // The header (its opaque blocks too) and whatever follows the check byte stay.
        QCOMPARE(CardFixture::readFile(configPath()),
                 CardFixture::configBin(model, CardFixture::blocks(widths, changed)) + tail);
        QVERIFY(m_messages.isEmpty());
        QCOMPARE(read(), 0);
    }

    void checkByteCoversFromOffset64() {
        useDescription(R"({"M1_TEST": {"G": [{"name": "a", "type": 1}, {"name": "b", "type": 2}]},
                           "EMPTY_M": {}})");
        // A model without groups is the header and the check byte.
        QVERIFY(CardFixture::writeFile(configPath(), CardFixture::configBin("EMPTY_M", {})));
        QCOMPARE(read(), 0);
        const QByteArray good = CardFixture::configBin("M1_TEST", {QByteArray("\x05\x34\x12", 3)});
        QCOMPARE(good.size(), 161 + 128);
        QVERIFY(CardFixture::writeFile(configPath(), good));
        QCOMPARE(read(), 0);
        QCOMPARE(ConfigAccess::groups[0].items[1].value, double(0x1234));
        QCOMPARE(int(ConfigAccess::checkByte), int(quint8(good.back())));
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

    void badFilesAndUnknownModels() {
        QFile::remove(configPath());
        QCOMPARE(read(), ConfigAccess::FileMissing);

        QVERIFY(QDir().mkpath(configPath())); // a folder where the file should be
        QCOMPARE(read(), ConfigAccess::ReadFailed);
        QVERIFY(QDir(configPath()).removeRecursively());

        const auto widths =
            CardFixture::layout(CardFixture::shippedJson("configStr.json"), "RAVEN1_2CH");
        const QByteArray good =
            CardFixture::configBin("RAVEN1_2CH", CardFixture::blocks(widths, {{7}}));
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
        const auto widths =
            CardFixture::layout(CardFixture::shippedJson("configStr.json"), "OSPREY_1CH");
        const QByteArray original = CardFixture::configBin(
            "OSPREY_1CH", CardFixture::blocks(widths, {{1, 1, 1, 1}, {1, 1}, {3}, {540, 1, 3}}));
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
};

QTEST_GUILESS_MAIN(TestConfigAccess)
#include "test_configaccess.moc"
