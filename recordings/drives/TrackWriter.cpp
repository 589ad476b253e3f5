#include "TrackWriter.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace {

bool located(const TraceSample& sample) {
    return sample.latitude != 0 || sample.longitude != 0;
}

QString timeText(qint64 ms) {
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC)
        .toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"));
}

QString number(double value, int decimals) {
    return QString::number(value, 'f', decimals);
}

// The route's positions in pieces: a reading without a fix ends a piece.
QVector<QVector<TraceSample>> pieces(const QVector<TraceSample>& trace) {
    QVector<QVector<TraceSample>> made(1);
    for (const TraceSample& sample : trace) {
        if (located(sample))
            made.last().append(sample);
        else if (!made.last().isEmpty())
            made.append(QVector<TraceSample>());
    }
    if (made.last().isEmpty())
        made.removeLast();
    return made;
}

QString incidentName(const Incident& incident) {
    return QString::fromLatin1(Incident::kindKey(incident.kind));
}

QByteArray gpx(const QVector<TraceSample>& trace, qint64 startMs, const QString& name) {
    QByteArray out;
    QXmlStreamWriter xml(&out);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("gpx"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.1"));
    xml.writeAttribute(QStringLiteral("creator"), QStringLiteral("tavoric"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.topografix.com/GPX/1/1"));
    xml.writeNamespace(QString::fromLatin1(TrackWriter::kExtensionNamespace),
                       QStringLiteral("tav"));
    xml.writeStartElement(QStringLiteral("trk"));
    xml.writeTextElement(QStringLiteral("name"), name);
    const QString ns = QString::fromLatin1(TrackWriter::kExtensionNamespace);
    for (const QVector<TraceSample>& piece : pieces(trace)) {
        xml.writeStartElement(QStringLiteral("trkseg"));
        for (const TraceSample& sample : piece) {
            xml.writeStartElement(QStringLiteral("trkpt"));
            xml.writeAttribute(QStringLiteral("lat"), number(sample.latitude, 6));
            xml.writeAttribute(QStringLiteral("lon"), number(sample.longitude, 6));
            xml.writeTextElement(QStringLiteral("time"), timeText(startMs + sample.timeMs));
            xml.writeStartElement(QStringLiteral("extensions"));
            if (sample.speedKmh >= 0)
                xml.writeTextElement(ns, QStringLiteral("speed"), number(sample.speedKmh, 1));
            xml.writeTextElement(ns, QStringLiteral("gx"), number(sample.x, 3));
            xml.writeTextElement(ns, QStringLiteral("gy"), number(sample.y, 3));
            xml.writeTextElement(ns, QStringLiteral("gz"), number(sample.z, 3));
            xml.writeEndElement();
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return out;
}

QByteArray kml(const QVector<TraceSample>& trace, const QVector<Incident>& incidents,
               qint64 startMs, const QString& name) {
    QByteArray out;
    QXmlStreamWriter xml(&out);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("kml"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.opengis.net/kml/2.2"));
    xml.writeStartElement(QStringLiteral("Document"));
    xml.writeTextElement(QStringLiteral("name"), name);
    int part = 0;
    for (const QVector<TraceSample>& piece : pieces(trace)) {
        if (piece.size() < 2)
            continue;
        xml.writeStartElement(QStringLiteral("Placemark"));
        xml.writeTextElement(QStringLiteral("name"), part++ == 0
                                                         ? QStringLiteral("Route")
                                                         : QStringLiteral("Route, continued"));
        xml.writeStartElement(QStringLiteral("TimeSpan"));
        xml.writeTextElement(QStringLiteral("begin"), timeText(startMs + piece.first().timeMs));
        xml.writeTextElement(QStringLiteral("end"), timeText(startMs + piece.last().timeMs));
        xml.writeEndElement();
        xml.writeStartElement(QStringLiteral("LineString"));
        QStringList coordinates;
        for (const TraceSample& sample : piece)
            coordinates << number(sample.longitude, 6) + ',' + number(sample.latitude, 6);
        xml.writeTextElement(QStringLiteral("coordinates"), coordinates.join(' '));
        xml.writeEndElement();
        xml.writeEndElement();
    }
    for (const Incident& incident : incidents) {
        if (incident.latitude == 0 && incident.longitude == 0)
            continue;
        xml.writeStartElement(QStringLiteral("Placemark"));
        xml.writeTextElement(QStringLiteral("name"), incidentName(incident));
        xml.writeTextElement(QStringLiteral("description"),
                             QStringLiteral("%1 g").arg(number(incident.peakG, 2)));
        xml.writeStartElement(QStringLiteral("TimeStamp"));
        xml.writeTextElement(QStringLiteral("when"), timeText(startMs + incident.timeMs));
        xml.writeEndElement();
        xml.writeStartElement(QStringLiteral("Point"));
        xml.writeTextElement(QStringLiteral("coordinates"),
                             number(incident.longitude, 6) + ',' + number(incident.latitude, 6));
        xml.writeEndElement();
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return out;
}

QByteArray csv(const QVector<TraceSample>& trace, qint64 startMs) {
    QByteArray out = "time,latitude,longitude,speed_kmh,x,y,z\n";
    for (const TraceSample& sample : trace) {
        const bool here = located(sample);
        out += timeText(startMs + sample.timeMs).toLatin1() + ',' +
               (here ? number(sample.latitude, 6).toLatin1() : QByteArray()) + ',' +
               (here ? number(sample.longitude, 6).toLatin1() : QByteArray()) + ',' +
               (sample.speedKmh >= 0 ? number(sample.speedKmh, 1).toLatin1() : QByteArray()) + ',' +
               number(sample.x, 3).toLatin1() + ',' + number(sample.y, 3).toLatin1() + ',' +
               number(sample.z, 3).toLatin1() + '\n';
    }
    return out;
}

QByteArray geoJson(const QVector<TraceSample>& trace, const QVector<Incident>& incidents,
                   qint64 startMs, const QString& name) {
    QJsonArray lines;
    for (const QVector<TraceSample>& piece : pieces(trace)) {
        if (piece.size() < 2)
            continue;
        QJsonArray line;
        for (const TraceSample& sample : piece)
            line.append(QJsonArray{std::round(sample.longitude * 1e6) / 1e6,
                                   std::round(sample.latitude * 1e6) / 1e6});
        lines.append(line);
    }
    QJsonArray features;
    if (!lines.isEmpty()) {
        const QJsonObject geometry =
            lines.size() == 1 ? QJsonObject{{"type", "LineString"}, {"coordinates", lines.first()}}
                              : QJsonObject{{"type", "MultiLineString"}, {"coordinates", lines}};
        features.append(QJsonObject{
            {"type", "Feature"},
            {"geometry", geometry},
            {"properties", QJsonObject{{"name", name},
                                       {"start", timeText(startMs + trace.first().timeMs)},
                                       {"end", timeText(startMs + trace.last().timeMs)}}}});
    }
    for (const Incident& incident : incidents) {
        if (incident.latitude == 0 && incident.longitude == 0)
            continue;
        features.append(QJsonObject{
            {"type", "Feature"},
            {"geometry",
             QJsonObject{{"type", "Point"},
                         {"coordinates", QJsonArray{std::round(incident.longitude * 1e6) / 1e6,
                                                    std::round(incident.latitude * 1e6) / 1e6}}}},
            {"properties", QJsonObject{{"kind", incidentName(incident)},
                                       {"time", timeText(startMs + incident.timeMs)},
                                       {"peak_g", std::round(incident.peakG * 1000) / 1000.0}}}});
    }
    return QJsonDocument(QJsonObject{{"type", "FeatureCollection"}, {"features", features}})
        .toJson();
}

} // namespace

bool TrackWriter::formatOf(const QString& name, Format* format) {
    const QString lower = name.toLower();
    const struct {
        const char* name;
        Format format;
    } known[] = {{"gpx", Gpx}, {"kml", Kml}, {"csv", Csv}, {"geojson", GeoJson}};
    for (const auto& entry : known) {
        if (lower == QLatin1String(entry.name)) {
            *format = entry.format;
            return true;
        }
    }
    return false;
}

bool TrackWriter::hasPositions(const QVector<TraceSample>& trace) {
    return std::any_of(trace.cbegin(), trace.cend(), located);
}

QByteArray TrackWriter::write(Format format, const QVector<TraceSample>& trace,
                              const QVector<Incident>& incidents, qint64 startMs,
                              const QString& name) {
    switch (format) {
    case Gpx:
        return gpx(trace, startMs, name);
    case Kml:
        return kml(trace, incidents, startMs, name);
    case Csv:
        return csv(trace, startMs);
    case GeoJson:
        return geoJson(trace, incidents, startMs, name);
    }
    return QByteArray();
}
