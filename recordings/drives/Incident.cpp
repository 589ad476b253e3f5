#include "Incident.h"

#include <QCoreApplication>

QString Incident::kindText(Kind kind) {
    switch (kind) {
    case HarshBraking:
        return QCoreApplication::translate("Incident", "Harsh braking");
    case HarshAcceleration:
        return QCoreApplication::translate("Incident", "Harsh acceleration");
    case SharpTurn:
        return QCoreApplication::translate("Incident", "Sharp turn");
    case Impact:
        return QCoreApplication::translate("Incident", "Impact");
    case CameraEvent:
        break;
    }
    return QCoreApplication::translate("Incident", "Camera event");
}

const char* Incident::kindKey(Kind kind) {
    switch (kind) {
    case HarshBraking:
        return "harsh_braking";
    case HarshAcceleration:
        return "harsh_acceleration";
    case SharpTurn:
        return "sharp_turn";
    case Impact:
        return "impact";
    case CameraEvent:
        return "camera_event";
    }
    return "";
}
