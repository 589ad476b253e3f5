#include "BenchMedia.h"

#include "AppGlobals.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

bool BenchMedia::prepare(const QString& set) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral(PYTHON3), {QStringLiteral(MAKE_RECORDINGS), set, folder(set)});
    const bool made = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
                      process.exitCode() == 0;
    if (!made)
        std::fprintf(stderr, "could not make the %s recordings in %s\n", qPrintable(set),
                     qPrintable(folder(set)));
    return made;
}

QString BenchMedia::folder(const QString& name) {
    return QStringLiteral(BENCH_MEDIA) + '/' + name;
}

QStringList BenchMedia::lengthRecordings() {
    const QDir dir(folder(QStringLiteral("bench")) + "/lengths");
    QStringList paths;
    for (const QString& name : dir.entryList({"*.mp4"}, QDir::Files, QDir::Name))
        paths << dir.filePath(name);
    return paths;
}

QString BenchMedia::driveRecording() {
    return folder(QStringLiteral("bench")) + "/20240612_100000_INF_1.mp4";
}

bool BenchMedia::runQuietly(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

void BenchMedia::useScratchDataFolder() {
    static QTemporaryDir scratch;
    AppGlobals::dataFolder = scratch.path();
}
