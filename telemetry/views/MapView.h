#pragma once

#include "Incident.h"
#include "TavWidget.h"
#include "TraceSample.h"

#include <QImage>
#include <QPoint>
#include <QString>
#include <QVector>

class QLabel;
class QWebEngineView;

// The GPS position of the playing recording on a web map. The map page (HTML and script,
// kept in the program encrypted) is shown in a web view, and the program talks to it only
// through the page's functions: initMap(), setLatLng(latitude, longitude, speed, first) and
// setRoute(points), which draws the whole route of the recording coloured by speed.
//
// The position follows playback from the coordinator's 500 ms tick. While the recording has
// no fix yet the map shows a default position, and changes to the real one (with a new map)
// at the first point that has one.
class MapView : public TavWidget {
    Q_OBJECT
public:
    // The position shown while there is no fix.
    static constexpr double kDefaultLatitude = 37.485344;
    static constexpr double kDefaultLongitude = 127.11623;
    // The route sent to the page has at most this many points (a long recording's 10 Hz
    // points are thinned evenly; the page draws the same line).
    static constexpr int kMaxRoutePoints = 3000;

    // encryptedPage: the page as stored; empty for the program's own.
    explicit MapView(QWidget* parent = nullptr, const QByteArray& encryptedPage = QByteArray());

    // The frame and the inner area take the panel's width and the view's height; the web
    // view fills the inner area.
    void resizeUi();
    // The page failed to decrypt: the map area says so instead.
    bool pageFailed() const { return m_pageFailed; }
    QWebEngineView* webView() const { return m_web; }
    // The map as it shows on the screen now; a null image while no map is shown.
    QImage currentPicture() const;
    // The map drawn for paper (light, without its controls), or as the program shows it.
    void setPaper(bool paper);

signals:
    void onSendBlockKeyboardEvent(bool flag);
    // Every script sent to the page, as sent.
    void scriptSent(const QString& script);

public slots:
    // The drive that plays: its whole route and its incidents (both empty: no drive).
    void onSetDrive(const QVector<TraceSample>& route, const QVector<Incident>& incidents);
    void setLoadMap(bool ok);
    void onLoadMap();
    void onUpdateMap();
    void onClearData();
    void onMapShow(bool show);
    // Speeds and the scale in this unit (2 miles per hour, else km/h) from now on.
    void onSetSpeedUnit(int unit);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    // The drive's route and incident pins while a drive plays.
    QString incidentScript() const;
    struct MapPoint {
        int index;
        float latitude;
        float longitude;
        float speed;
    };
    void run(const QString& script);
    // "setLatLng(...)" for a position, and the shared display texts set to it.
    void showPosition(double latitude, double longitude, double speed, bool first);
    QString routeScript() const;
    // "setSpeedUnit(...)" for the program's speed unit.
    static QString unitScript();

    QWidget* m_frame;
    QWidget* m_area;
    QWebEngineView* m_web = nullptr;
    QLabel* m_error = nullptr;
    QVector<MapPoint> m_points;
    QVector<MapPoint> m_driveRoute;
    QVector<Incident> m_incidents;
    // The map was set up for the drive that plays: its next recordings keep it.
    bool m_driveShown = false;
    bool m_pageLoaded = false;
    bool m_mapLoaded = false;
    bool m_pageFailed = false;
    bool m_usedDefault = false;
    bool m_noFix[2] = {false, false};
    // The car's last position, shown again in another unit.
    QString m_lastPosition;
    int m_panelWidth = 0;
};
