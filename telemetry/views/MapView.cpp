#include "MapView.h"

#include "AppGlobals.h"
#include "MapPageCipher.h"
#include "PlaybackState.h"
#include "StatusLog.h"

#include <QCoreApplication>
#include <QLabel>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineSettings>
#include <QWebEngineView>

#include <algorithm>

namespace {

QString coordinate(double value) {
    return QString::number(value, 'f', 5);
}

QString speedText(double value) {
    return QString::number(value, 'g', 6);
}

} // namespace

MapView::MapView(QWidget* parent, const QByteArray& encryptedPage)
    : TavWidget("MapView", parent), m_frame(new QWidget(this)), m_area(new QWidget(m_frame)) {
    logInfo("[MapView]: Enter MapView class.");
    addChild(m_frame, "mapFrame", Style::Panel);
    addChild(m_area, "mapArea", Style::Panel);

    QString error;
    const QByteArray page = encryptedPage.isEmpty()
                                ? MapPageCipher::builtInPage(&error)
                                : MapPageCipher::decrypt(encryptedPage, MapPageCipher::programKey(),
                                                         MapPageCipher::programIv(), &error);
    if (!page.isEmpty() && !page.startsWith("<!DOCTYPE html>")) {
        error = QStringLiteral("the decrypted page is not a map page");
    } else if (!page.isEmpty()) {
        m_web = new QWebEngineView(m_area);
        addChild(m_web, "mapWeb", Style::None);
        QWebEngineSettings* settings = m_web->settings();
        settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
        settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
        connect(m_web, &QWebEngineView::loadFinished, this, &MapView::setLoadMap);
        m_web->setHtml(QString::fromUtf8(page),
                       QUrl::fromLocalFile(QCoreApplication::applicationDirPath() +
                                           QStringLiteral("/Resources/json/")));
    }
    if (m_web == nullptr) {
        // The rest of the program works on; the map area says why it is empty.
        m_pageFailed = true;
        logError("[MapView]: The map page cannot be shown: %s", error.toLocal8Bit().constData());
        m_error = new QLabel(m_area);
        addChild(m_error, "mapError", Style::Label);
        m_error->setWordWrap(true);
        m_error->setAlignment(Qt::AlignCenter);
        m_error->setText(tr("The map cannot be shown: its page in the program is damaged."));
    }
    m_panelWidth = width();
}

void MapView::run(const QString& script) {
    if (m_web == nullptr)
        return;
    m_web->page()->runJavaScript(script);
    emit scriptSent(script);
}

void MapView::setLoadMap(bool ok) {
    logDebug("MapView::setLoadMap");
    // The page keeps its unit for every new map; it is told once it is up.
    const bool firstLoad = ok && !m_pageLoaded;
    m_pageLoaded = m_pageLoaded || ok;
    run(QStringLiteral("initMap()"));
    if (firstLoad)
        run(unitScript());
    if (ok)
        logInfo("[MapView]: Set map data is complete.");
    else
        logInfo("[MapView]: Failed to set map data.");
    m_mapLoaded = ok;
    // A new map has no route: the recording's (or the drive's) goes on it again.
    if (ok && (!m_points.isEmpty() || !m_driveRoute.isEmpty()))
        run(routeScript());
    if (ok && !m_incidents.isEmpty())
        run(incidentScript());
}

void MapView::onLoadMap() {
    logDebug("MapView::onLoadMap");
    logDebug("MapView::setData");
    m_points.clear();
    m_points.reserve(PlaybackState::gpsList.size());
    for (const GpsPoint& point : PlaybackState::gpsList)
        m_points.append({point.index, point.latitude, point.longitude, point.speed});
    m_usedDefault = false;
    m_noFix[0] = m_noFix[1] = false;
    // The next recording of a drive: the map, the drive's route and the car stay.
    if (PlaybackState::inDrive() && m_driveShown && m_pageLoaded) {
        m_mapLoaded = true;
        return;
    }
    m_driveShown = PlaybackState::inDrive();
    if (m_pageLoaded) {
        run(QStringLiteral("initMap()"));
        logInfo("[MapView]: Set map data is complete.");
        m_mapLoaded = true;
        if (!m_points.isEmpty() || !m_driveRoute.isEmpty())
            run(routeScript());
        if (!m_incidents.isEmpty())
            run(incidentScript());
    }
    if (m_points.isEmpty())
        return;
    double latitude = m_points.first().latitude;
    double longitude = m_points.first().longitude;
    double speed = m_points.first().speed;
    if (latitude == 0 && longitude == 0) {
        m_usedDefault = true;
        latitude = kDefaultLatitude;
        longitude = kDefaultLongitude;
        speed = 0;
    }
    showPosition(latitude, longitude, speed, true);
}

void MapView::onUpdateMap() {
    logDebug("MapView::onUpdateMap");
    if (!PlaybackState::telemetryPresent || m_points.isEmpty() ||
        (PlaybackState::playStatus != PlaybackState::PlayRunning &&
         PlaybackState::playStatus != PlaybackState::PlayPaused) ||
        PlaybackState::totalTime <= 0)
        return;
    const int lastIndex = m_points.last().index;
    const int i = int(lastIndex * PlaybackState::currentTime / PlaybackState::totalTime);
    if (i < 1 || i >= lastIndex || !m_mapLoaded || i >= m_points.size())
        return;
    const MapPoint& point = m_points.at(i);
    if (point.latitude == 0 && point.longitude == 0) {
        m_noFix[0] = m_noFix[1] = true;
        showPosition(kDefaultLatitude, kDefaultLongitude, point.speed, false);
        return;
    }
    m_noFix[0] = false;
    if (m_usedDefault) {
        m_usedDefault = false;
        setLoadMap(true);
    }
    showPosition(point.latitude, point.longitude, point.speed, false);
}

void MapView::setPaper(bool paper) {
    if (m_pageLoaded)
        run(paper ? QStringLiteral("setPaper(true)") : QStringLiteral("setPaper(false)"));
}

QImage MapView::currentPicture() const {
    if (m_web == nullptr || !m_mapLoaded || !m_web->isVisible())
        return QImage();
    return m_web->grab().toImage();
}

QString MapView::unitScript() {
    return AppGlobals::speedUnit == 2 ? QStringLiteral("setSpeedUnit(true)")
                                      : QStringLiteral("setSpeedUnit(false)");
}

void MapView::onSetSpeedUnit(int) {
    logDebug("MapView::onSetSpeedUnit");
    if (!m_pageLoaded)
        return;
    run(unitScript());
    // The car's label in the new unit at once, also while playback is paused.
    if (!m_lastPosition.isEmpty())
        run(m_lastPosition);
}

void MapView::showPosition(double latitude, double longitude, double speed, bool first) {
    m_lastPosition = QStringLiteral("setLatLng(%1, %2, %3, false)")
                         .arg(coordinate(latitude), coordinate(longitude), speedText(speed));
    if (m_mapLoaded)
        run(QStringLiteral("setLatLng(%1, %2, %3, %4)")
                .arg(coordinate(latitude), coordinate(longitude), speedText(speed),
                     first ? QStringLiteral("true") : QStringLiteral("false")));
}

void MapView::onSetDrive(const QVector<TraceSample>& route, const QVector<Incident>& incidents) {
    logDebug("MapView::onSetDrive");
    m_driveRoute.clear();
    for (const TraceSample& sample : route)
        m_driveRoute.append({0, sample.latitude, sample.longitude, sample.speedKmh});
    m_incidents.clear();
    for (const Incident& incident : incidents)
        if (incident.latitude != 0 || incident.longitude != 0)
            m_incidents.append(incident);
    if (route.isEmpty() && incidents.isEmpty())
        m_driveShown = false;
    if (!m_mapLoaded)
        return;
    run(routeScript());
    run(incidentScript());
}

QString MapView::incidentScript() const {
    QStringList pins;
    for (const Incident& incident : m_incidents) {
        const qint64 seconds = incident.timeMs / 1000;
        const QString when = QStringLiteral("%1:%2")
                                 .arg(seconds / 60, 2, 10, QLatin1Char('0'))
                                 .arg(seconds % 60, 2, 10, QLatin1Char('0'));
        pins << QStringLiteral("[%1,%2,\"%3 %4 g\"]")
                    .arg(coordinate(incident.latitude), coordinate(incident.longitude), when,
                         QString::number(incident.peakG, 'f', 2));
    }
    return QStringLiteral("setIncidents([%1])").arg(pins.join(','));
}

QString MapView::routeScript() const {
    QStringList points;
    // While a drive plays its whole route is drawn, not the recording's.
    const QVector<MapPoint>& shown =
        PlaybackState::inDrive() && !m_driveRoute.isEmpty() ? m_driveRoute : m_points;
    const int step = std::max(1, int((shown.size() + kMaxRoutePoints - 1) / kMaxRoutePoints));
    for (int i = 0; i < shown.size(); i += step) {
        const MapPoint& point = shown.at(i);
        points << QStringLiteral("[%1,%2,%3]")
                      .arg(coordinate(point.latitude), coordinate(point.longitude),
                           QString::number(point.speed, 'f', 1));
    }
    return QStringLiteral("setRoute([%1])").arg(points.join(','));
}

void MapView::onClearData() {
    logDebug("MapView::onClearData");
    m_points.clear();
    m_lastPosition.clear();
    // Between a drive's recordings the map stays as it is.
    if (!PlaybackState::inDrive())
        m_mapLoaded = false;
    emit onSendBlockKeyboardEvent(false);
}

void MapView::onMapShow(bool show) {
    logDebug("MapView::onMapShow");
    for (QWidget* child : {m_frame, m_area, static_cast<QWidget*>(m_web)}) {
        if (child != nullptr)
            child->setVisible(show);
    }
    setVisible(show);
}

void MapView::resizeUi() {
    logDebug("MapView::resizeUi");
    m_panelWidth = width();
    m_frame->setGeometry(0, 0, m_panelWidth, height());
    m_area->setGeometry(0, 0, m_panelWidth, height());
    if (m_web != nullptr)
        m_web->setGeometry(m_area->rect());
    if (m_error != nullptr)
        m_error->setGeometry(m_area->rect().adjusted(16, 16, -16, -16));
}

void MapView::resizeEvent(QResizeEvent* event) {
    TavWidget::resizeEvent(event);
    resizeUi();
}
