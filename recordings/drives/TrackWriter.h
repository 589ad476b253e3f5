#pragma once

#include "Incident.h"
#include "TraceSample.h"

#include <QByteArray>
#include <QString>
#include <QVector>

// A drive's (or a recording's, or a range's) telemetry as a file other tools open:
//   GPX 1.1   track points with their time; speed and G in the extension namespace
//             kExtensionNamespace (docs/track-formats.md); a stretch without a fix starts a
//             new track segment;
//   KML 2.2   the route as a LineString, incidents as placemarks;
//   CSV       time, latitude, longitude, speed_kmh, x, y, z; a header line, dot decimals,
//             every reading (positions empty without a fix);
//   GeoJSON   the route as a LineString (a MultiLineString where a fix was lost), incidents
//             as points.
// Times are the camera's clock (startMs plus the reading's time), ISO 8601 without a zone.
class TrackWriter {
public:
    enum Format { Gpx, Kml, Csv, GeoJson };
    static constexpr const char* kExtensionNamespace = "https://tavoric.org/xmlns/track/1";

    // "gpx", "kml", "csv", "geojson" (any case); false for others.
    static bool formatOf(const QString& name, Format* format);

    // The file's contents. trace: readings on the track's own time from startMs; name: what
    // the track is called inside the file.
    static QByteArray write(Format format, const QVector<TraceSample>& trace,
                            const QVector<Incident>& incidents, qint64 startMs,
                            const QString& name);

    // Whether any reading has a position (a file of none would be an empty track).
    static bool hasPositions(const QVector<TraceSample>& trace);
};
