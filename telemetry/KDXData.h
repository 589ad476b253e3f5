#pragma once

#include "kdxstream.h"

#include <QByteArray>
#include <QString>

#include <vector>

// One recording's telemetry as the player uses it: opens the recording through kdxstream,
// reads its information record, reads every text frame of one track into memory and hands
// the frames out by index.
class KDXData {
public:
    static constexpr int kInfoSize = KDX_INFO_SIZE;

    // info: the caller's kInfoSize-byte buffer, filled by KDX_Open and read by the getters.
    explicit KDXData(unsigned char* info);
    ~KDXData();
    KDXData(const KDXData&) = delete;
    KDXData& operator=(const KDXData&) = delete;

    // Opens a recording and reads its information: -1 open failed, 2 information
    // unreadable, 1 no text data, 0 text data present. An empty path opens the current
    // recording (see setCurrentRecordingSource).
    int KDX_Open(const QString& path);

    // Reads every frame of a track and closes the reader: -1 when an earlier step failed,
    // else 0 (a frame that cannot be read ends the reading; the frames so far are kept).
    int KDX_GetTextData(void* unused, int track);

    int KDX_GetTextDataTotalCount();
    int KDX_GetTotalRange();
    int KDX_GetVideoTotalNum();
    // Where the telemetry was found ("GPMF", "freeGPS", "timed text", ...); empty without.
    QString telemetryKind() const;

    // The buffer of frame index as 32-bit values (see KDXTextFrame for the fields), or null
    // for an index out of range.
    float* KDX_GetTextDataFrame(int index) const;

    void KDX_TextDataFree();
    void KDX_Close();

    // 0 fine, -2 open failed, -4 frame read failed; readerError is the library's result.
    int error() const { return m_error; }
    int readerError() const { return m_readerError; }

    // Where an empty path leads: the player keeps its current recording here.
    using CurrentRecordingSource = QString (*)();
    static void setCurrentRecordingSource(CurrentRecordingSource source);

private:
    void releaseFrames();

    std::vector<KDXFrameDescriptor*> m_frames;
    KDXReader* m_reader = nullptr;
    KDXOpenParams m_openParams{};
    unsigned char* m_info;
    int m_error = 0;
    int m_readerError = 0;

    // The two path forms handed to the library, alive while the reader is open.
    QString m_path;
    QByteArray m_path8;
};
