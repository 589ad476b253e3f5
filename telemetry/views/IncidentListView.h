#pragma once

#include "Incident.h"

#include <QListWidget>
#include <QVector>

// The incidents of the drive that plays, beside the chart: a row each with its time in the
// drive, its kind, its peak in g and the speed then (in the user's unit). Choosing one (a
// click, Enter) asks to play from a few seconds before it. Hidden while there is none.
class IncidentListView : public QListWidget {
    Q_OBJECT
public:
    // How long before an incident playback starts when it is chosen.
    static constexpr int kLeadMs = 3000;

    explicit IncidentListView(QWidget* parent = nullptr);

    // What a row says.
    static QString rowText(const Incident& incident, int speedUnit);
    static QString kindText(int kind);

signals:
    // Play from this moment of the drive.
    void seekTo(int driveMs);

public slots:
    void setIncidents(const QVector<Incident>& incidents);
    void onChangeLanguage();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose(QListWidgetItem* item);

    QVector<Incident> m_incidents;
};
