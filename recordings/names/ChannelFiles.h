#pragma once

#include <QString>

#include <array>

// The files of a recording kept one file per camera, and how one of them leads to the
// others: the file list groups a recording's files into one row by these rules, and the
// player opens all channels from any one of them by the same rules.
//
// Two kinds of names qualify. The camera's own MP4 channel files end in "_1.mp4", "_2.mp4"
// or "_3.mp4" (case-sensitive, front camera first). Other cameras' names (NameSchemes) carry
// a channel letter F, R, I (front, rear, interior) or a digit 1-3; their siblings differ in
// that letter or digit alone.
class ChannelFiles {
public:
    static constexpr int kChannels = 3;

    // The channel (0-2) of a channel file (a path or a bare name); -1 for any other file.
    static int channelOf(const QString& path);

    // What the files of one recording share: the folder and name without the channel. Any
    // other file is a recording of its own: its path.
    static QString recordingKey(const QString& path);

    // The path of the same recording's file for another channel (0-2), in the same folder;
    // empty when path is no channel file.
    static QString siblingPath(const QString& path, int channel);

    // The recording's channel files that exist now, by channel (missing ones empty). A path
    // that is no channel file gives only itself as channel 0, when it exists.
    static std::array<QString, kChannels> onDisk(const QString& path);
};
