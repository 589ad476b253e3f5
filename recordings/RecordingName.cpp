#include "RecordingName.h"

#include "ChannelFiles.h"
#include "ContainerClock.h"
#include "KDXData.h"
#include "NameSchemes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

const char* const RecordingName::kSingleChannelAvi =
    "(19|20)\\d{2}(0[1-9]|1[012])(0[1-9]|1[0-9]|2[0-9]|3[01])_(0[0-9]|1[0-9]|2[0-3])([0-5][0-9])"
    "([0-5][0-9])_([EIPU][NVRS][FTKR])_([12345]).avi";
const char* const RecordingName::kSingleChannelMp4 =
    "(19|20)\\d{2}(0[1-9]|1[012])(0[1-9]|1[0-9]|2[0-9]|3[01])_(0[0-9]|1[0-9]|2[0-3])([0-5][0-9])"
    "([0-5][0-9])_([EIPU][NVRS][FTKR])_([12345]).mp4";
const char* const RecordingName::kTwoDigitChannelAvi =
    "(19|20)\\d{2}(0[1-9]|1[012])(0[1-9]|1[0-9]|2[0-9]|3[01])_(0[0-9]|1[0-9]|2[0-3])([0-5][0-9])"
    "([0-5][0-9])_([EIPU][NVRS][FTKR])_([12345])_([12345]).avi";
const char* const RecordingName::kFrontOnlyMp4 =
    "(19|20)\\d{2}(0[1-9]|1[012])(0[1-9]|1[0-9]|2[0-9]|3[01])_(0[0-9]|1[0-9]|2[0-3])([0-5][0-9])"
    "([0-5][0-9])_([EIPU][NVRS][FTKR])_[14].mp4";

const char* const RecordingName::kMp4ChannelSuffixes[3] = {"_1.mp4", "_2.mp4", "_3.mp4"};
const char* const RecordingName::kAviChannelSuffixes[3] = {"_1.avi", "_2.avi", "_3.avi"};

namespace {

// Compiled once; matching a const expression is safe from any thread.
const QRegularExpression& singleAvi() {
    static const QRegularExpression re(QString::fromLatin1(RecordingName::kSingleChannelAvi));
    return re;
}
const QRegularExpression& singleMp4() {
    static const QRegularExpression re(QString::fromLatin1(RecordingName::kSingleChannelMp4));
    return re;
}
const QRegularExpression& twoDigitAvi() {
    static const QRegularExpression re(QString::fromLatin1(RecordingName::kTwoDigitChannelAvi));
    return re;
}

} // namespace

bool RecordingName::isSupportedName(const QString& path) {
    if (isOwnName(path))
        return true;
    const QFileInfo info(path);
    const QString name = info.fileName();
    return !NameSchemes::isOwnForm(name) && NameSchemes::parse(name).valid;
}

bool RecordingName::isOwnName(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    if (name.split('_', Qt::KeepEmptyParts).size() < 4)
        return false;
    if (name.endsWith(QLatin1String(".avi")))
        return singleAvi().match(name).hasMatch() || twoDigitAvi().match(name).hasMatch();
    if (name.endsWith(QLatin1String(".mp4")))
        return singleMp4().match(name).hasMatch();
    return false;
}

bool RecordingName::isCardRecordingName(const QString& fileName) {
    if (fileName.endsWith(QLatin1String(".avi")))
        return singleAvi().match(fileName).hasMatch();
    if (fileName.endsWith(QLatin1String(".mp4")))
        return singleMp4().match(fileName).hasMatch();
    return false;
}

int RecordingName::typeFromName(const QString& fileName) {
    const QStringList parts = fileName.split('_', Qt::KeepEmptyParts);
    if (parts.size() < 3)
        return Unknown;
    const QString& code = parts.at(2);
    if (code == QLatin1String("EVT"))
        return Event;
    if (code == QLatin1String("INF"))
        return Infinity;
    if (code == QLatin1String("PRK"))
        return Parking;
    if (code == QLatin1String("USR"))
        return User;
    return Unknown;
}

int RecordingName::typeOf(const QString& path) {
    const QFileInfo info(path);
    const QString name = info.fileName();
    if (NameSchemes::isOwnForm(name))
        return typeFromName(name);
    return NameSchemes::parse(name, info.dir().dirName()).type;
}

QString RecordingName::typeLabel(int type) {
    static const char* const labels[] = {"", "I", "E", "P", "U"};
    return (type >= Infinity && type <= User) ? QString::fromLatin1(labels[type]) : QString();
}

QString RecordingName::typeIconPath(const QString& label) {
    const QString folder = QCoreApplication::applicationDirPath() + "/Resources/image/";
    if (label == QLatin1String("I"))
        return folder + "inf-icon.svg";
    if (label == QLatin1String("E"))
        return folder + "event-icon.svg";
    if (label == QLatin1String("P"))
        return folder + "parking-icon.svg";
    if (label == QLatin1String("U"))
        return folder + "icon-user.svg";
    return folder;
}

bool RecordingName::isChannelFile(const QString& name) {
    return channelIndex(name) >= 0;
}

int RecordingName::channelIndex(const QString& name) {
    return ChannelFiles::channelOf(name);
}

QString RecordingName::recordingName(const QString& fileName) {
    // "_C.mp4": the channel digit and the extension.
    constexpr int kTail = 6;
    const int size = fileName.size();
    if (size > kTail && fileName.endsWith(QLatin1String(".mp4")) &&
        fileName.at(size - kTail) == QLatin1Char('_') && fileName.at(size - 5).isDigit())
        return fileName.left(size - kTail);
    return QFileInfo(fileName).completeBaseName();
}

QString RecordingName::siblingChannelPath(const QString& path, int channel) {
    if (channel < 0 || channel > 2)
        return QString();
    for (int i = 0; i < 3; ++i) {
        const QLatin1String suffix(kAviChannelSuffixes[i]);
        if (path.endsWith(suffix))
            return path.left(path.size() - suffix.size()) +
                   QLatin1String(kAviChannelSuffixes[channel]);
    }
    return ChannelFiles::siblingPath(path, channel);
}

QString RecordingName::displayName(const QString& path) {
    const QFileInfo info(path);
    const QString name = info.fileName();
    if (NameSchemes::isOwnForm(name) || isOwnName(path))
        return recordingName(name);
    const ForeignName foreign = NameSchemes::parse(name, info.dir().dirName());
    QDateTime start = foreign.start;
    if (foreign.valid && !start.isValid())
        start = ContainerClock::creationTime(path);
    if (foreign.valid && !start.isValid() && info.exists())
        start = info.lastModified().toUTC();
    if (!start.isValid())
        return info.completeBaseName();
    static const char* const codes[] = {"", "INF", "EVT", "PRK", "USR"};
    const QString stamp = start.toString(QStringLiteral("yyyyMMdd_HHmmss"));
    return foreign.type >= Infinity && foreign.type <= User
               ? stamp + QLatin1Char('_') + QLatin1String(codes[foreign.type])
               : stamp;
}

QString RecordingName::sortKey(const QString& path, const QString& displayName) {
    const QString name = QFileInfo(path).fileName();
    if (NameSchemes::isOwnForm(name))
        return name;
    // A blank sorts before "_" and every digit: another camera's recording comes before the
    // camera's own of the same second, and its files keep their own order among themselves.
    return displayName + QLatin1Char(' ') + name;
}

namespace {

// Whether a file starts the way a recording's container does (an MP4 or MOV box, an AVI's
// RIFF header, an MPEG-TS packet): one that does and still cannot be opened is damaged.
bool startsLikeARecording(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(12);
    if (head.size() < 8)
        return false;
    static const char* const boxes[] = {"ftyp", "moov", "mdat", "free", "skip", "wide", "pnot"};
    for (const char* box : boxes) {
        if (head.mid(4, 4) == box)
            return true;
    }
    return head.startsWith("RIFF") || head.at(0) == 0x47;
}

} // namespace

QString RecordingName::problemText(int problem) {
    switch (problem) {
    case EmptyFile:
        return QCoreApplication::translate("RecordingName", "The file is empty.");
    case NotAVideo:
        return QCoreApplication::translate("RecordingName", "The file is not a video recording.");
    case Damaged:
        return QCoreApplication::translate(
            "RecordingName", "The recording is damaged or was cut off (for example by a power "
                             "loss) and cannot be opened.");
    case NoVideo:
        return QCoreApplication::translate("RecordingName", "The file holds no picture.");
    default:
        return QString();
    }
}

RecordingName::Length RecordingName::readLength(const QString& path) {
    Length length;
    if (QFileInfo(path).size() == 0) {
        length.problem = EmptyFile;
        return length;
    }
    alignas(8) unsigned char info[KDXData::kInfoSize];
    KDXData reader(info);
    const int opened = reader.KDX_Open(path);
    // 2: the file opened but its header gave no information (a recording cut off before its
    // index, which holds its streams): no length to show, and nothing to play.
    if (opened < 0 || opened == 2) {
        length.problem = startsLikeARecording(path) ? Damaged : NotAVideo;
        return length;
    }
    length.ms = qMax(0, reader.KDX_GetTotalRange());
    const int seconds = int(length.ms / 1000);
    length.videoCount = qMax(0, reader.KDX_GetVideoTotalNum());
    length.telemetryKind = reader.telemetryKind();
    reader.KDX_Close();
    if (length.videoCount == 0)
        length.problem = NoVideo;
    length.text = QStringLiteral("%1:%2")
                      .arg(seconds / 60, 2, 10, QLatin1Char('0'))
                      .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return length;
}

QString RecordingName::durationText(const QString& path) {
    return readLength(path).text;
}
