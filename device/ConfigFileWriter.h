#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

// Replaces the leading bytes of an existing config.bin so that no crash or pulled card can
// leave a half-written file: the new bytes go to a file beside it, are flushed to the device
// and only then take its place in one rename. What is on the card is then read back; if it
// is not what was written, the previous bytes are put back the same way.
class ConfigFileWriter {
public:
    enum Result {
        Written,          // on the card and read back as written
        NothingWritten,   // missing, unreadable or read-only file: left as it was
        PreviousRestored, // the write did not hold; the previous bytes are back
        RestoreFailed     // the write did not hold, and the previous bytes could not be put back
    };

    // Writes image over the start of the file at path; bytes the file has beyond the image
    // are kept. A file that is not there is not created. error receives what went wrong.
    static Result replace(const QString& path, const QByteArray& image, QString* error);

    // Tests run this between the rename and the reading back, to make the card lose the
    // file or its bytes at the worst moment.
    static std::function<void(const QString& path)> afterReplaceHook;

private:
    static bool commit(const QString& path, const QByteArray& bytes, QString* error);
    static bool holds(const QString& path, const QByteArray& bytes);
};
