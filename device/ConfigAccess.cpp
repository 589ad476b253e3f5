#include "ConfigAccess.h"

#include "CardDrives.h"
#include "ConfigFileWriter.h"
#include "ConfigImage.h"
#include "FileFormatThread.h"
#include "JsonToConfig.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "WaitAlertView.h"

#include <QFile>
#include <QThread>

#include <exception>

QByteArray ConfigAccess::rawHeader;
QString ConfigAccess::identityText;
QString ConfigAccess::identitySuffix;
QString ConfigAccess::modelText;
QString ConfigAccess::versionText;
QString ConfigAccess::secondaryVersionText;
quint8 ConfigAccess::checkByte = 0;
ConfigGroups ConfigAccess::groups;
qint32 ConfigAccess::specialValue = 0;
QString ConfigAccess::cardRoot;
bool ConfigAccess::cardThreadRunning = false;

namespace {

// How long onFinishThread waits between looks at a thread that is still finishing.
constexpr int kBusyPollMs = 300;

} // namespace

ConfigAccess::ConfigAccess(QObject* parent) : QObject(parent) {}

ConfigAccess::~ConfigAccess() {
    delete m_thread;
    delete m_wait;
}

QString ConfigAccess::configPath(const QString& root) {
    QString path = root + "/CONFIG/config.bin";
    return path.replace('\\', '/');
}

ConfigGroup::Item* ConfigAccess::findItem(const QString& name) {
    for (ConfigGroup& group : groups) {
        for (ConfigGroup::Item& item : group.items) {
            if (item.name == name)
                return &item;
        }
    }
    return nullptr;
}

QString ConfigAccess::readResultText(int result) {
    switch (result) {
    case ReadFailed:
        return tr("Error is occured!");
    case ModelUnknown:
        return tr("This model is not supported!");
    case ChecksumWrong:
        return tr("checksum is different!");
    case FileMissing:
        return tr("Setting file is not exist!");
    default:
        return QString();
    }
}

qint32 ConfigAccess::readConfig(const QDir& root) {
    logDebug("ConfigAccess::readConfig");
    logInfo("[SDCardView]: Try read Config file data...");
    const QString path = configPath(root.path());
    if (!QFile::exists(path))
        return FileMissing;
    try {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            logError("Error! Failed to read data!");
            return ReadFailed;
        }
        const QByteArray header = file.read(ConfigImage::kHeaderSize);
        rawHeader = header + QByteArray(ConfigImage::kHeaderSize - header.size(), '\0');
        identityText = ConfigImage::headerText(rawHeader, ConfigImage::kIdentityBlock);
        identitySuffix = identityText.right(4);
        modelText = ConfigImage::headerText(rawHeader, ConfigImage::kModelBlock);
        const QString version = ConfigImage::headerText(rawHeader, ConfigImage::kVersionBlock);
        (modelText.isEmpty() ? secondaryVersionText : versionText) = version;

        if (!getModelConfigStruct()) {
            identityText.clear();
            identitySuffix.clear();
            modelText.clear();
            cardRoot.clear();
            return ModelUnknown;
        }
        const QByteArray body = file.read(ConfigImage::fileSize(groups.size()) - header.size());
        const QByteArray image = rawHeader.left(header.size()) + body;
        const bool matches = ConfigImage::decode(image, groups);
        checkByte = static_cast<quint8>(
            image.size() == ConfigImage::fileSize(groups.size()) ? image.back() : 0);
        if (!matches) {
            logError("CheckSum Error!");
            return ChecksumWrong;
        }
        if (modelText.contains(QLatin1String("D21")) && groups.size() > kSpecialGroup &&
            groups[kSpecialGroup].items.size() > kSpecialItem)
            specialValue = static_cast<qint32>(groups[kSpecialGroup].items[kSpecialItem].value);
        logLine("read configuration Complete!");
        return ReadOk;
    } catch (const std::exception& error) {
        logError("Error! Failed to read data! %s", error.what());
    } catch (...) {
        logError("Error! Failed to read data!");
    }
    return ReadFailed;
}

bool ConfigAccess::getModelConfigStruct() {
    logDebug("ConfigAccess::getModelConfigStruct");
    JsonToConfig description;
    if (!description.isOpen())
        TavPrompt::inform(nullptr, tr("This model is not support!"));
    if (!description.setModel(modelText))
        return false;
    groups = description.getItem();
    return true;
}

bool ConfigAccess::writeMemory() {
    logDebug("ConfigAccess::writeMemory");
    logInfo("[SettingView]: write config file...");
    const QString path = configPath(cardRoot);
    if (!CardDrives::isSafeCardRoot(cardRoot)) {
        logError("[ConfigAccess]: %s is not the opened card; nothing written",
                 path.toLocal8Bit().constData());
        TavPrompt::inform(nullptr, tr("The settings were not written: the SD card is not the "
                                      "one that was opened."));
        return false;
    }
    QString error;
    ConfigFileWriter::Result result = ConfigFileWriter::NothingWritten;
    try {
        for (int i = 0; i < groups.size(); ++i)
            logDebug("ConfigAccess::setMemoryBuffer");
        const QByteArray image = ConfigImage::encode(rawHeader, groups);
        result = ConfigFileWriter::replace(path, image, &error);
        if (result == ConfigFileWriter::Written) {
            checkByte = static_cast<quint8>(image.back());
            logLine("write memory complete!");
            return true;
        }
    } catch (const std::exception& exception) {
        logError("Error! Occur exception when write memory!");
        logError("%s", exception.what());
    } catch (...) {
        logError("Error! Occur exception when write memory!");
        logError("Unknown exception");
    }
    logError("[ConfigAccess]: config.bin not written: %s", error.toLocal8Bit().constData());
    if (result == ConfigFileWriter::RestoreFailed)
        TavPrompt::inform(nullptr, tr("The settings could not be written to the SD card, and its "
                                      "previous settings could not be put back."));
    else
        TavPrompt::inform(nullptr, tr("The settings could not be written to the SD card. Its "
                                      "previous settings are kept."));
    return false;
}

int ConfigAccess::FileFormat(QWidget* parent) {
    logDebug("ConfigAccess::FileFormat");
    if (m_thread != nullptr && m_thread->isRunning())
        return -1;
    delete m_thread;
    m_thread = new FileFormatThread;
    connect(m_thread, &FileFormatThread::threadDetail, this, &ConfigAccess::onThreadDetail);
    connect(m_thread, &FileFormatThread::threadFinished, this, &ConfigAccess::onFinishThread);
    connect(this, &ConfigAccess::onSendThreadStop, m_thread, &FileFormatThread::stopThread);
    m_thread->setMode(1);
    m_thread->start(QThread::InheritPriority);
    delete m_wait;
    m_wait = new WaitAlertView(parent);
    m_wait->setModal(true);
    m_wait->show();
    return 0;
}

void ConfigAccess::onThreadDetail(const QString& detail) {
    m_detail = detail;
}

QString ConfigAccess::formatFailureLog(int mode, int code) {
    if (mode == 1) {
        switch (code) {
        case -1:
            return "Can not move temp Config folder!";
        case -2:
            return "Can not copy item to temp config folder!";
        case -3:
            return "Can not back root! Check sdcard connection!";
        case -4:
            return "Can not move sd Config folder!";
        case -5:
            return "Can not copy item to sd config folder";
        case FileFormatThread::NotFormatted:
            return "The card was not formatted!";
        case FileFormatThread::FormatterFailed:
            return "The formatter failed!";
        default:
            return QString();
        }
    }
    if (mode == 2 && code == -2)
        return "Error! Occur exception when initial memory!";
    if (mode == 2 && code == -1)
        return "fail to delete folder!";
    return QString();
}

void ConfigAccess::onFinishThread(int errorcode) {
    logDebug("ConfigAccess::onFinishThread");
    logDebug("onFinishedThread recv");
    if (m_wait != nullptr)
        m_wait->close();
    const int mode = m_thread != nullptr ? m_thread->mode() : 0;
    if (errorcode != 0) {
        logError("Error! %d", errorcode);
        const QString message = formatFailureLog(mode, errorcode);
        if (!message.isEmpty())
            logError("%s", message.toLocal8Bit().constData());
        // The detail belongs to this code only.
        QString text = tr("Fail to format SDCard!");
        if (!m_detail.isEmpty())
            text += '\n' + m_detail;
        m_detail.clear();
        delete m_wait;
        m_wait = nullptr;
        TavPrompt::inform(nullptr, text);
        return;
    }
    disconnect(m_thread, &FileFormatThread::threadFinished, this, &ConfigAccess::onFinishThread);
    disconnect(this, &ConfigAccess::onSendThreadStop, m_thread, &FileFormatThread::stopThread);
    while (FileFormatThread::busy)
        QThread::msleep(kBusyPollMs);
    delete m_thread;
    m_thread = nullptr;
    delete m_wait;
    m_wait = nullptr;
    if (mode == 1)
        emit onSendFileFormatFinished();
    else if (mode == 2)
        emit onSendInitializeFinished();
}
