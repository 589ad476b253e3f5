#pragma once

#include <QMetaType>
#include <QString>

// What the viewer knows about a recording from its file name alone:
//   YYYYMMDD_HHMMSS_TYP_C.ext   (ext "mp4" or "avi"; AVI names may carry a second channel
//   digit: YYYYMMDD_HHMMSS_TYP_C_D.avi)
//
// The expressions are deliberately loose and must stay so: they are not anchored, the dot
// before the extension is a plain regular-expression dot, and the type field accepts any
// mix of the letters of the four codes. Cards in the field carry names that only these
// loose forms accept.
//
// Recordings of other cameras are admitted too, by the layouts of NameSchemes (names/):
// their date, type (from the name or its folder) and channel. A name in the camera's own
// layout is judged by the camera's grammar alone, so everything it refuses stays refused.
class RecordingName {
public:
    enum Type { Unknown = 0, Infinity = 1, Event = 2, Parking = 3, User = 4 };

    static const char* const kSingleChannelAvi;
    static const char* const kSingleChannelMp4;
    static const char* const kTwoDigitChannelAvi;
    // Front files only, and one-file recordings (_4, every camera in one file); the card
    // dialog lists cameras with a file per channel by these.
    static const char* const kFrontOnlyMp4;

    // Channel suffixes: index 0 is the front camera, 1 and 2 the rear cameras.
    static const char* const kMp4ChannelSuffixes[3];
    static const char* const kAviChannelSuffixes[3];

    // Extension markers for code that must remember which kind the current recording is.
    static constexpr const char* kAviMarker = "rAvi";
    static constexpr const char* kMp4Marker = "rMp4";

    // Whether a file (any path) may be listed as a recording: a name the camera's grammar
    // admits, or another camera's name.
    static bool isSupportedName(const QString& path);
    // Whether the camera's own grammar admits the file's name.
    static bool isOwnName(const QString& path);

    // The memory-card listing admits single-channel names only.
    static bool isCardRecordingName(const QString& fileName);

    // Type code 0-4 from the third "_" field; exact and case-sensitive.
    static int typeFromName(const QString& fileName);
    // The type of the recording at path: by typeFromName for names in the camera's own
    // layout, else by the other camera's name or, without a type there, its folder.
    static int typeOf(const QString& path);

    // The list's label letter for a type code ("I", "E", "P", "U"), empty for unknown.
    static QString typeLabel(int type);

    // Image folder followed by the icon file of a label letter; any other letter gives the
    // image folder alone.
    static QString typeIconPath(const QString& label);

    // True for the files of a recording kept one file per camera: names ending in "_1.mp4",
    // "_2.mp4" or "_3.mp4", and other cameras' names with a channel letter or digit
    // (ChannelFiles).
    static bool isChannelFile(const QString& name);
    // The channel (0-2) of such a name; -1 for any other name.
    static int channelIndex(const QString& name);

    // The name the list shows for a file's recording, without its extension: for an MP4
    // also without the channel suffix ("20240612_081502_INF"), since its channel files, or
    // its tracks, are one recording; an AVI is a row of its own per camera and keeps its
    // channel ("20240612_123100_PRK_1").
    static QString recordingName(const QString& fileName);

    // What the list shows for the recording at path, the same way for every camera: the
    // camera's own names by recordingName; other cameras' recordings as their start and
    // type in the camera's layout, YYYYMMDD_HHMMSS_TYP, the start taken from the name or,
    // for numbered files, from the container (ContainerClock), else the file's time.
    static QString displayName(const QString& path);
    // What orders the list: the camera's own file names as they are (their date leads);
    // other cameras' files by their display name, which leads with the date too.
    static QString sortKey(const QString& path, const QString& displayName);

    // What a file's header tells before it is played.
    // Why a listed file cannot be played.
    enum Problem {
        NoProblem = 0,
        EmptyFile, // nothing in it (a copy that never finished)
        NotAVideo, // not a video recording at all (a text file named .mp4, say)
        Damaged,   // a recording's container that cannot be opened: cut off, or broken
        NoVideo,   // a container without any picture in it
    };
    struct Length {
        QString text;       // MM:SS, empty when the file cannot be read
        int videoCount = 0; // video tracks; 0 when the file cannot be read
        qint64 ms = 0;      // the length in milliseconds; 0 when the file cannot be read
        QString telemetryKind; // where its telemetry was found; empty without
        int problem = NoProblem;
    };
    // What the user is told about a problem; empty for none.
    static QString problemText(int problem);
    // Length and video tracks of a recording file, from one reading of its header.
    static Length readLength(const QString& path);

    // The recording's length as MM:SS (three minute digits from 100 minutes on), read from
    // the file's header; empty when the file cannot be read.
    static QString durationText(const QString& path);

    // The path of the same recording's file for another channel (0-2), in the same folder.
    // Empty when the path does not end in a channel suffix or carry another camera's
    // channel letter or digit.
    static QString siblingChannelPath(const QString& path, int channel);
};

Q_DECLARE_METATYPE(RecordingName::Length)
