#pragma once

#include <QImage>
#include <QString>

// What the one-page report shows of the scene being played. Values that the recording does
// not have stay empty; the report prints their labels all the same.
struct ReportScene {
    QImage sceneImage;
    QImage mapImage;
    QString fileName;
    QString date;
    QString modelName;
    QString latitude;  // "00.00000"
    QString longitude; // "00.00000"
    QString speed;     // in the unit below
    QString gSensorX;  // three decimals
    QString gSensorY;
    QString gSensorZ;
    int speedUnit = 1; // 2: miles per hour, else kilometres per hour

    // The values of the playing recording at its current time, from the shared play state
    // and telemetry lists. The date is the recording's start (from its name) plus the time
    // played.
    static ReportScene fromPlayback(const QString& modelName, int speedUnit);

    // A coordinate with at least two integer digits and five decimals ("07.50000").
    static QString coordinateText(double value);
    // "YYYYMMDD_HHMMSS..." names give their date and time plus `seconds`; other names nothing.
    static QString dateText(const QString& fileName, double seconds);
    // A speed in km/h as the unit shows it: one decimal, converted to mi/h for unit 2.
    static QString speedText(double kmh, int speedUnit);
};
