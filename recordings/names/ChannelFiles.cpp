#include "ChannelFiles.h"

#include "NameSchemes.h"

#include <QFileInfo>

namespace {

const char* const kOwnSuffixes[ChannelFiles::kChannels] = {"_1.mp4", "_2.mp4", "_3.mp4"};
constexpr int kOwnSuffixSize = 6;

int ownChannel(const QString& path) {
    for (int channel = 0; channel < ChannelFiles::kChannels; ++channel)
        if (path.endsWith(QLatin1String(kOwnSuffixes[channel])))
            return channel;
    return -1;
}

int nameStart(const QString& path) {
    return qMax(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\'))) + 1;
}

// The foreign name of path, read with the channel's position in the whole path.
ForeignName foreignName(const QString& path, int* start) {
    *start = nameStart(path);
    return NameSchemes::parse(path.mid(*start));
}

} // namespace

int ChannelFiles::channelOf(const QString& path) {
    const int own = ownChannel(path);
    if (own >= 0)
        return own;
    int start = 0;
    return foreignName(path, &start).channel;
}

QString ChannelFiles::recordingKey(const QString& path) {
    if (ownChannel(path) >= 0)
        return path.left(path.size() - kOwnSuffixSize);
    int start = 0;
    const ForeignName name = foreignName(path, &start);
    if (name.channel < 0)
        return path;
    // "*" stands for the channel; no own key has one.
    QString key = path;
    return key.replace(start + name.channelStart, name.channelToken.size(), QLatin1Char('*'));
}

QString ChannelFiles::siblingPath(const QString& path, int channel) {
    if (channel < 0 || channel >= kChannels)
        return QString();
    if (ownChannel(path) >= 0)
        return path.left(path.size() - kOwnSuffixSize) + QLatin1String(kOwnSuffixes[channel]);
    int start = 0;
    const ForeignName name = foreignName(path, &start);
    if (name.channel < 0)
        return QString();
    QString sibling = path;
    return sibling.replace(start + name.channelStart, name.channelToken.size(),
                           NameSchemes::tokenOfChannel(channel, name.channelToken));
}

std::array<QString, ChannelFiles::kChannels> ChannelFiles::onDisk(const QString& path) {
    std::array<QString, kChannels> files;
    if (channelOf(path) < 0) {
        if (QFileInfo(path).isFile())
            files[0] = path;
        return files;
    }
    for (int channel = 0; channel < kChannels; ++channel) {
        const QString candidate = siblingPath(path, channel);
        if (QFileInfo(candidate).isFile())
            files[channel] = candidate;
    }
    return files;
}
