#include "KDXData.h"

#include "StatusLog.h"

#include <atomic>
#include <cstddef>
#include <cstring>
#include <new>

namespace {

std::atomic<KDXData::CurrentRecordingSource> currentRecordingSource{nullptr};

// The library's own trace lines describe why a file could not be used.
void traceToStatusLog(const char* line) {
    logWarning("%s", line);
}

} // namespace

KDXData::KDXData(unsigned char* info) : m_info(info) {
    KDX_SetTraceSink(&traceToStatusLog);
}

KDXData::~KDXData() {
    // PlayerInterface frees the frames itself before destroying a reader; whatever is left
    // (a reader that was only asked for its length) is released quietly here.
    releaseFrames();
    KDX_Close();
}

void KDXData::setCurrentRecordingSource(CurrentRecordingSource source) {
    currentRecordingSource.store(source);
}

int KDXData::KDX_Open(const QString& path) {
    KDX_Close();
    m_error = 0;
    m_readerError = 0;

    if (path.isEmpty()) {
        const CurrentRecordingSource source = currentRecordingSource.load();
        m_path = (source != nullptr ? source() : QString()) + QChar(u'\0');
    } else {
        m_path = path;
    }
    m_path8 = m_path.toLocal8Bit();
    m_openParams = KDXOpenParams{};
    m_openParams.pathUtf16 = reinterpret_cast<const uint16_t*>(m_path.utf16());
    m_openParams.info = m_info;
    m_openParams.path8 = m_path8.constData();

    const int opened = KDXReaderOpen(&m_reader, &m_openParams);
    if (opened < 0) {
        m_error = -2;
        m_readerError = opened;
        KDX_Trace("KDX_Reader Can't Open!");
        return -1;
    }

    // Filled into an aligned record and copied, since the caller's buffer is plain bytes.
    KDXInfo info;
    std::memset(&info, 0, sizeof info);
    const int filled = m_info != nullptr ? KDXReaderGetInfo(m_reader, &info) : KDX_ERR_ARGUMENT;
    if (m_info != nullptr)
        std::memcpy(m_info, &info, kInfoSize);
    if (filled != 0) {
        logWarning("KDXReader Can't Get Info!");
        return 2;
    }
    return info.textDataPresent == 0 ? 1 : 0;
}

namespace {

std::uint32_t wordAt(const unsigned char* info, int offset) {
    if (info == nullptr)
        return 0;
    std::uint32_t word;
    std::memcpy(&word, info + offset, sizeof word);
    return word;
}

} // namespace

int KDXData::KDX_GetTextData(void* unused, int track) {
    Q_UNUSED(unused);
    logDebug("KDXData::KDX_GetTextData");
    if (m_error != 0)
        return -1;

    std::uint32_t frameSize = 0;
    std::uint32_t frameCount = 0;
    if (track >= 0 && track < KDX_MAX_TRACKS) {
        const int entry = static_cast<int>(offsetof(KDXInfo, tracks)) +
                          track * static_cast<int>(sizeof(KDXTrackInfo));
        frameSize = wordAt(m_info, entry + offsetof(KDXTrackInfo, frameSize));
        frameCount = wordAt(m_info, entry + offsetof(KDXTrackInfo, frameCount));
    }

    for (std::uint32_t i = 0; i < frameCount; ++i) {
        KDXFrameDescriptor descriptor;
        std::memset(&descriptor, 0, sizeof descriptor);
        descriptor.buffer = new (std::nothrow) unsigned char[frameSize]();
        descriptor.bufferSize = frameSize;
        descriptor.track = static_cast<std::uint32_t>(track);
        descriptor.kind = KDX_FRAME_TEXT;
        const int result = KDXReaderReadFrame(m_reader, &descriptor);
        if (result < 0) {
            delete[] static_cast<unsigned char*>(descriptor.buffer);
            m_error = -4;
            m_readerError = result;
            logWarning("KDXReader Can't read Frame!");
            break;
        }
        m_frames.push_back(new KDXFrameDescriptor(descriptor));
    }
    KDX_Close();
    return 0;
}

int KDXData::KDX_GetTextDataTotalCount() {
    logDebug("KDXData::KDX_GetTextDataTotalCount");
    return static_cast<int>(m_frames.size());
}

int KDXData::KDX_GetTotalRange() {
    logDebug("KDXData::KDX_GetTotalRange");
    return static_cast<int>(wordAt(m_info, offsetof(KDXInfo, totalRangeMs)));
}

QString KDXData::telemetryKind() const {
    if (m_info == nullptr)
        return QString();
    const char* kind = reinterpret_cast<const char*>(m_info) + offsetof(KDXInfo, telemetryKind);
    return QString::fromLatin1(kind, int(qstrnlen(kind, sizeof(KDXInfo::telemetryKind))));
}

int KDXData::KDX_GetVideoTotalNum() {
    logDebug("KDXData::KDX_GetVideoTotalNum");
    return static_cast<int>(wordAt(m_info, offsetof(KDXInfo, videoCount)));
}

float* KDXData::KDX_GetTextDataFrame(int index) const {
    if (index < 0 || index >= static_cast<int>(m_frames.size()))
        return nullptr;
    return static_cast<float*>(m_frames[static_cast<std::size_t>(index)]->buffer);
}

void KDXData::KDX_TextDataFree() {
    logDebug("KDXData::KDX_TextDataFree");
    releaseFrames();
}

void KDXData::releaseFrames() {
    // Front to back: each frame's buffer, then its descriptor.
    for (KDXFrameDescriptor* descriptor : m_frames) {
        delete[] static_cast<unsigned char*>(descriptor->buffer);
        delete descriptor;
    }
    m_frames.clear();
}

void KDXData::KDX_Close() {
    if (m_reader != nullptr) {
        KDXReaderClose(m_reader);
        m_reader = nullptr;
    }
}
