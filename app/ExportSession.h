#pragma once

#include <QObject>
#include <QString>

class MapView;
class PlayerInterface;
class QImage;
class QWidget;

// The main window's dialogs about the current picture: the capture dialog (snapshots and
// video of the cameras) and the report. Playback holds still while one is open, and plays on
// afterwards when the dialog paused it.
class ExportSession : public QObject {
    Q_OBJECT
public:
    // How long a map that was hidden gets to draw before the report takes its picture.
    static constexpr int kMapDrawMs = 600;

    // map: the side panel's map, or null when the window has none.
    ExportSession(QWidget* window, PlayerInterface* player, MapView* map);

public slots:
    void openCaptureDialog();
    // mapShown: whether the side panel shows the map now (else the list).
    void openReport(bool mapShown);

signals:
    // Playback paused for a dialog, and played on after it.
    void onSendSetPause();
    void onSendResume();
    // The side panel shows the map, or the list again.
    void onSendShowMap();
    void onSendShowList();

private:
    // True when this dialog paused playback.
    bool pauseForDialog();
    void resumeAfterDialog(bool paused, const QString& file);
    void showReportDialogs(bool paused, const QImage& map);

    QWidget* m_window;
    PlayerInterface* m_player;
    MapView* m_map;
};
