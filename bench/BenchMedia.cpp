#include "BenchMedia.h"

#include "AppGlobals.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

bool BenchMedia::prepare() {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral(PYTHON3),
                  {QStringLiteral(MAKE_RECORDINGS), QStringLiteral("bench"), folder()});
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QString BenchMedia::folder() {
    return QStringLiteral(BENCH_MEDIA);
}

QStringList BenchMedia::lengthRecordings() {
    const QDir dir(folder() + "/lengths");
    QStringList paths;
    for (const QString& name : dir.entryList({"*.mp4"}, QDir::Files, QDir::Name))
        paths << dir.filePath(name);
    return paths;
}

QString BenchMedia::driveRecording() {
    return folder() + "/20240612_100000_INF_1.mp4";
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
