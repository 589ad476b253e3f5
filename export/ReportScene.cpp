#include "ReportScene.h"

#include "PlaybackState.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>

namespace {

// The sample of a telemetry list that belongs to the current time, as the chart and the map
// pick it; -1 when there is none.
template <typename Point> int currentSample(const QList<Point>& points) {
    if (points.isEmpty() || PlaybackState::totalTime <= 0)
        return -1;
    const int i = int(points.size() * PlaybackState::currentTime / PlaybackState::totalTime);
    return qBound(0, i, int(points.size()) - 1);
}

} // namespace

ReportScene ReportScene::fromPlayback(const QString& modelName, int speedUnit) {
    ReportScene scene;
    scene.fileName = QFileInfo(PlaybackState::currentFile).fileName();
    // The play time is in milliseconds.
    scene.date = dateText(scene.fileName, PlaybackState::currentTime / 1000.0);
    scene.modelName = modelName;
    scene.speedUnit = speedUnit;
    if (!PlaybackState::telemetryPresent)
        return scene;
    const int g = currentSample(PlaybackState::gSensorList);
    if (g >= 0) {
        const GSensorPoint& point = PlaybackState::gSensorList.at(g);
        scene.gSensorX = QString::number(point.x, 'f', 3);
        scene.gSensorY = QString::number(point.y, 'f', 3);
        scene.gSensorZ = QString::number(point.z, 'f', 3);
    }
    const int p = PlaybackState::gpsPresent ? currentSample(PlaybackState::gpsList) : -1;
    // A point without a fix has no position to print (the map shows a stand-in there).
    if (p >= 0 && (PlaybackState::gpsList.at(p).latitude != 0 ||
                   PlaybackState::gpsList.at(p).longitude != 0)) {
        const GpsPoint& point = PlaybackState::gpsList.at(p);
        scene.latitude = coordinateText(point.latitude);
        scene.longitude = coordinateText(point.longitude);
        scene.speed = speedText(point.speed, speedUnit);
    }
    return scene;
}

QString ReportScene::coordinateText(double value) {
    const QString digits = QString::number(std::fabs(value), 'f', 5).rightJustified(8, '0');
    return value < 0 ? '-' + digits : digits;
}

QString ReportScene::dateText(const QString& fileName, double seconds) {
    static const QRegularExpression stamp(QStringLiteral("^(\\d{8}_\\d{6})"));
    const QRegularExpressionMatch match = stamp.match(fileName);
    if (!match.hasMatch())
        return QString();
    const QDateTime start =
        QDateTime::fromString(match.captured(1), QStringLiteral("yyyyMMdd_HHmmss"));
    if (!start.isValid())
        return QString();
    return start.addSecs(qint64(std::max(0.0, seconds)))
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString ReportScene::speedText(double kmh, int speedUnit) {
    constexpr double kMilesPerKilometre = 0.621371;
    return QString::number(speedUnit == 2 ? kmh * kMilesPerKilometre : kmh, 'f', 1);
}
