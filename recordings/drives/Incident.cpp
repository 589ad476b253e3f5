#include "Incident.h"

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
